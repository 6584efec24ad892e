// The operations that write animations in other formats.
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <unistd.h>

#include "app/export/fit_under.h"
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

ExportResult CliSession::RunExport(FittedExport* exported) {
    Work work([this](uint64, int64 done, int64 total) {
        desktop_.ShowProgress(Format("Status: exporting, %d%% of it...",
                                     static_cast<int>(100 * done / std::max<int64>(total, 1))));
    });
    work.Begin();
    exporting_ = &work;
    if (stopped_) work.StopAll();
    const ExportTask task = {app_->Current(), prefs_.global_pauseinseconds, app_->pixel_budget,
                             roster_, work};
    const ExportResult result = export_(export_limit_, task, export_settings_, exported);
    exporting_ = nullptr;
    work.End();
    desktop_.ClearProgress();
    return result;
}

CliSession::Outcome CliSession::Export(const std::string& value) {
    const std::optional<ExportFormat> format = ExportFormatOf(value);
    if (!format)
        return Refuse("--export: \"" + value + "\": expected .gif, .webp, .png, .mp4 or .webm.");
    desktop_.SetSubject(value);
    export_settings_.format = *format;
    const auto file = BFile::CreateReplacing(AbsoluteRef(value).path);
    if (file->InitCheck() != B_OK) return Fail(value + ": " + kFileNotCreatedText);
    file->RemoveLeftovers();
    FittedExport exported;
    const ExportResult result = RunExport(&exported);
    if (result == ExportResult::kStopped) return Outcome::kFailed;
    if (result == ExportResult::kTooManyBytes)
        return Fail(
            value + ": " + SentenceOf(result, *format) +
            Format(" The smallest that was tried has %" PRIu64 " bytes.", exported.smallest));
    if (result != ExportResult::kDone) return Fail(value + ": " + SentenceOf(result, *format));
    file->Write(exported.bytes.data(), exported.bytes.size());
    if (file->Commit() != B_OK) {
        write_failed_ = true;
        return Fail(value + ": " + kFileNotCreatedText);
    }
    const std::string cut_short = NumbersCutShort(*app_->Current(), prefs_.global_pauseinseconds);
    if (*format == ExportFormat::kGif && !cut_short.empty())
        desktop_.Complain(value + ": Exported, but " + cut_short + ".");
    const std::string given_up = GivenUp(export_settings_, exported.settings);
    const std::string subject = isatty(STDOUT_FILENO) ? TerminalText(value) : value;
    std::printf("%s: %zu bytes%s%s\n", subject.c_str(), exported.bytes.size(),
                given_up.empty() ? "" : ", with ", given_up.c_str());
    return Outcome::kDone;
}

}  // namespace kirto
