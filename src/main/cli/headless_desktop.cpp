#include "main/cli/headless_desktop.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <utility>

#include "app/open_animation.h"
#include "base/terminal_text.h"
#include "document/command_codes.h"
#include "kit/entry_ref.h"
#include "kit/file.h"
#include "main/cli/error_lines.h"
#include "main/cli/viewer.h"

namespace kirto {

namespace {

// Answers for the one panel whose fields a command reads.
class HeadlessPanel : public FilePanel {
  public:
    explicit HeadlessPanel(const TileChoice& tiles) : tiles_(tiles) {}
    std::string RowsText() const override { return tiles_.rows; }
    std::string ColumnsText() const override { return tiles_.columns; }
    bool ColumnByColumn() const override { return tiles_.column_by_column; }

  private:
    const TileChoice& tiles_;
};

}  // namespace

HeadlessDesktop::HeadlessDesktop(bool salvage, bool quiet, bool json)
    : salvage_(salvage),
      json_(json),
      progress_(std::make_shared<ProgressLine>(!quiet)),
      previous_sink_(InstallDebugSink([this, quiet](const std::string& text) {
          if (quiet) return;
          ClearProgress();
          lines_.Write(text);
      })) {}

HeadlessDesktop::~HeadlessDesktop() {
    InstallDebugSink(previous_sink_);
}

int32 HeadlessDesktop::Present(const BAlert& alert) {
    std::string text = alert.Text();
    lacks_memory_ = text == kOutOfMemory;
    if (lacks_memory_) text += " Use --memory-limit to let frames take more.";
    Complain(subject_.empty() ? text : subject_ + ": " + text);
    const std::vector<std::string>& buttons = alert.Buttons();
    const auto salvage = std::find(buttons.begin(), buttons.end(), "Salvage");
    if (salvage_ && salvage != buttons.end()) {
        // What has gone wrong before the question is the reason for it.
        failure_ = false;
        return static_cast<int32>(salvage - buttons.begin());
    }
    failure_ = true;
    return static_cast<int32>(alert.Buttons().size()) - 1;
}

BMessenger HeadlessDesktop::OpenMainWindow(Kirto&, const BRect&, const std::string&) {
    return BMessenger(progress_);
}

BRect HeadlessDesktop::ScreenFrame() {
    return {0, 0, 1023, 767};
}

std::unique_ptr<FilePanel> HeadlessDesktop::MakeFilePanel(FilePanelKind, BMessenger) {
    return std::make_unique<HeadlessPanel>(tiles_);
}

// On the command line a file's name decides first, then its first bytes.
std::string HeadlessDesktop::MimeTypeOf(const std::string& path) {
    if (ClassifyAnimation(entry_ref(path).Leaf(), "") != AnimationType::kNone) return {};
    BFile file(path, B_READ_ONLY);
    switch (ClassifyContent(&file)) {
        case AnimationType::kGif:
            return "image/gif";
        case AnimationType::kFli:
            return "video/x-fli";
        case AnimationType::kWebp:
        case AnimationType::kApng:
        case AnimationType::kVideo:
        case AnimationType::kNone:
            break;
    }
    return {};
}

// The preview goes with the program, so the program stays until it has been seen.
void HeadlessDesktop::OpenInBrowser(const std::string& path) {
    ClearProgress();
    if (!RunViewer(path)) {
        Complain(path + ": The preview was written, but no program to show it was found.");
        failure_ = true;
        return;
    }
    if (!isatty(STDIN_FILENO)) return;
    std::fputs("Press Enter when you have seen the preview.", stderr);
    int character = 0;
    do {
        character = std::getchar();
    } while (character != EOF && character != '\n');
}

void HeadlessDesktop::ShowProgress(const std::string& text) {
    BMessage message(kStatusUpdate);
    message.AddString("text", text);
    progress_->Post(std::move(message), 0);
}

void HeadlessDesktop::Complain(const std::string& text) {
    ClearProgress();
    lines_.EndLine();
    if (json_) {
        const std::string opening = subject_.empty() ? "" : subject_ + ": ";
        const bool about = !opening.empty() && text.starts_with(opening);
        const std::string line =
            about ? ErrorLine(subject_, text.substr(opening.size())) : ErrorLine("", text);
        std::fputs(line.c_str(), stderr);
        return;
    }
    const std::string shown = lines_.IsTerminal() ? TerminalText(text) : text;
    std::fprintf(stderr, "kirto-cli: %s\n", shown.c_str());
}

}  // namespace kirto
