// The operations that write animations in other formats.
#include <cstdio>
#include <unistd.h>

#include "app/export/export_animation.h"
#include "app/save_animation.h"
#include "base/terminal_text.h"
#include "base/text.h"
#include "main/cli/cli_session.h"

namespace kirto {

CliSession::Outcome CliSession::SetExport(const std::string& value) {
    const std::string problem = ReadExportChoice(value, &export_settings_);
    return problem.empty() ? Outcome::kDone : Refuse("--export-set: \"" + value + "\": " + problem);
}

CliSession::Outcome CliSession::Fit(const std::string& value) {
    const std::optional<uint64> size = ParseByteSize(value);
    if (!size) return FitFrames(value);
    export_limit_ = size;
    return Outcome::kDone;
}

CliSession::Outcome CliSession::Export(const std::string& value) {
    const std::optional<ExportFormat> format = ExportFormatOf(value);
    if (!format)
        return Refuse("--export: \"" + value + "\": expected .gif, .webp, .png, .mp4 or .webm.");
    desktop_.SetSubject(value);
    export_settings_.format = *format;
    const std::string path = AbsoluteRef(value).path;
    const auto file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) return Fail(value + ": " + kFileNotCreatedText);
    file->RemoveLeftovers();
    Work work;
    exporting_ = &work;
    if (stopped_) work.StopAll();
    std::vector<uint8> bytes;
    const ExportResult result = ExportAnimation(
        {app_->Current(), prefs_.global_pauseinseconds, app_->pixel_budget, roster_, work},
        export_settings_, &bytes);
    exporting_ = nullptr;
    if (result == ExportResult::kStopped) return Outcome::kFailed;
    if (result != ExportResult::kDone) return Fail(value + ": " + SentenceOf(result, *format));
    file->Write(bytes.data(), bytes.size());
    if (file->Commit() != B_OK) {
        write_failed_ = true;
        return Fail(value + ": " + kFileNotCreatedText);
    }
    const std::string subject = isatty(STDOUT_FILENO) ? TerminalText(value) : value;
    std::printf("%s: %zu bytes\n", subject.c_str(), bytes.size());
    return Outcome::kDone;
}

}  // namespace kirto
