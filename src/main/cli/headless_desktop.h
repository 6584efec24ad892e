#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "app/desktop.h"
#include "base/debug_line.h"
#include "base/line_output.h"
#include "main/cli/progress_line.h"

namespace kirto {

// The values that the command line gives in place of the insert-tiled panel's fields.
struct TileChoice {
    std::string rows;
    std::string columns;
    bool column_by_column = false;
};

// The desktop of a program without a screen: alerts become lines on standard error and are answered
// with their last button, or with "Salvage" where that was asked for; the status line becomes a
// progress line; debug lines go to standard error unless it is quiet; panels hold what the command
// line says. The command line's thread writes the values while the application is idle.
class HeadlessDesktop : public Desktop {
  public:
    // json: complaints are lines of JSON.
    HeadlessDesktop(bool salvage, bool quiet, bool json);
    ~HeadlessDesktop() override;

    int32 Present(const BAlert& alert) override;
    BMessenger OpenMainWindow(Kirto& application, const BRect& frame,
                              const std::string& title) override;
    void AbandonPendingCommand() override {}
    BRect ScreenFrame() override;
    std::unique_ptr<FilePanel> MakeFilePanel(FilePanelKind kind, BMessenger target) override;
    std::string MimeTypeOf(const std::string& path) override;
    void OpenInBrowser(const std::string& path) override;

    // What the operation in hand works on; opens the lines about it. Empty for none.
    void SetSubject(const std::string& subject) { subject_ = subject; }
    void SetTiles(const TileChoice& tiles) { tiles_ = tiles; }
    // True when an alert has told of a failure since the last call. Salvaging is no failure.
    bool TakeFailure() { return failure_.exchange(false); }
    // True when what has failed was for want of memory, which may be there another time.
    bool LacksMemory() const { return lacks_memory_; }
    // Writes a line on standard error, opening with the program's name.
    void Complain(const std::string& text);
    // Shows how far the operation in hand is.
    void ShowProgress(const std::string& text);
    void ClearProgress() { progress_->Clear(); }

  private:
    const bool salvage_;
    const bool json_;
    LineOutput lines_{stderr};
    std::shared_ptr<ProgressLine> progress_;
    std::string subject_;
    TileChoice tiles_;
    std::atomic<bool> failure_ = false;
    std::atomic<bool> lacks_memory_ = false;
    DebugSink previous_sink_;
};

}  // namespace kirto
