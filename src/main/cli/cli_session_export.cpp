// The operations that write animations in other formats.
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

#include "app/export/fit_under.h"
#include "app/save_animation.h"
#include "base/terminal_text.h"
#include "base/text.h"
#include "main/cli/cli_session.h"

namespace kirto {

namespace {

std::string LeafOf(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

}  // namespace

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

ExportResult CliSession::RunExport(const std::string& path, FittedExport* exported) {
    Work work([this](uint64, int64 done, int64 total) {
        desktop_.ShowProgress(Format("Status: exporting, %d%% of it...",
                                     static_cast<int>(100 * done / std::max<int64>(total, 1))));
    });
    work.Begin();
    exporting_ = &work;
    if (stopped_) work.StopAll();
    const ExportTask task = {
        app_->Current(), prefs_.global_pauseinseconds, app_->pixel_budget, roster_, work,
        LeafOf(path)};
    const ExportResult result = export_(export_limit_, task, export_settings_, exported);
    exporting_ = nullptr;
    work.End();
    desktop_.ClearProgress();
    return result;
}

bool CliSession::TakeExportFormat(const std::string& path) {
    if (HasPictures(export_settings_.format)) {
        export_settings_.image = ExtensionOf(path);
        return true;
    }
    const std::optional<ExportFormat> format = ExportFormatOf(path);
    export_settings_.format = format.value_or(export_settings_.format);
    return format.has_value();
}

CliSession::Outcome CliSession::Export(const std::string& value) {
    if (!TakeExportFormat(value))
        return Refuse("--export: \"" + value + "\": expected .gif, .webp, .png, .mp4 or .webm.");
    desktop_.SetSubject(value);
    const std::string path = AbsoluteRef(value).path;
    // What can't be written there is not made.
    if (BFile::CreateReplacing(path)->InitCheck() != B_OK)
        return Fail(value + ": " + kFileNotCreatedText);
    FittedExport exported;
    const ExportResult result = RunExport(value, &exported);
    if (result == ExportResult::kStopped) return Outcome::kFailed;
    const std::string sentence = SentenceOf(result, export_settings_.format);
    if (result == ExportResult::kTooManyBytes)
        return Fail(
            value + ": " + sentence +
            Format(" The smallest that was tried has %" PRIu64 " bytes.", exported.smallest));
    if (result != ExportResult::kDone) return Fail(value + ": " + sentence);
    const WrittenExport written = WriteExport(exported.files, path);
    if (!written.IsComplete()) {
        write_failed_ = true;
        return Fail(value + ": " + kFileNotCreatedText + written.Remark());
    }
    TellOfExport(value, exported);
    return Outcome::kDone;
}

void CliSession::TellOfExport(const std::string& value, const FittedExport& exported) {
    const std::string cut_short = NumbersCutShort(*app_->Current(), prefs_.global_pauseinseconds);
    if (export_settings_.format == ExportFormat::kGif && !cut_short.empty())
        desktop_.Complain(value + ": Exported, but " + cut_short + ".");
    const std::string given_up = GivenUp(export_settings_, exported.settings);
    const std::string subject = isatty(STDOUT_FILENO) ? TerminalText(value) : value;
    const size_t count = exported.files.Count();
    std::printf("%s: %s%" PRIu64 " bytes%s%s\n", subject.c_str(),
                count > 1 ? Format("%zu files, ", count).c_str() : "",
                exported.files.Size(LeafOf(value)), given_up.empty() ? "" : ", with ",
                given_up.c_str());
}

}  // namespace kirto
