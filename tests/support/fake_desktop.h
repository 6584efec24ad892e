// A desktop without a screen, for tests of the application.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "app/desktop.h"
#include "support/test_support.h"

namespace kirto::test {

// What the fields of the file panels hold.
struct PanelFields {
    uint32 output_format = 0;
    std::string rows;
    std::string columns;
    bool column_by_column = false;
};

// Answers alerts from a script and records what it is asked for, one line each. Presents the
// program's alerts while it lives. Called from any thread; tests write the public fields while the
// application is idle.
class FakeDesktop : public Desktop {
  public:
    FakeDesktop();
    ~FakeDesktop() override;

    // What the main window was posted.
    const std::shared_ptr<PortRecorder> window = std::make_shared<PortRecorder>();
    BRect screen{0, 0, 1023, 767};
    PanelFields fields;
    BMessenger panel_target;                        // of the panel made last
    std::map<std::string, std::string> mime_types;  // by leaf name

    // Button indices for the next alerts, in order; then the last button answers again.
    void Answer(std::vector<int32> answers);
    // The lines so far, which are forgotten: alerts as AlertLine gives them, "told
    // TEXT", "window LEFT TOP RIGHT
    // BOTTOM TITLE", "panel KIND made", "panel KIND deleted", "pending command abandoned",
    // "browser PATH".
    std::vector<std::string> TakeLines();
    void AddLine(const std::string& line);
    // The files that are to be remembered, which are forgotten.
    std::vector<std::string> TakeRemembered();

    int32 Present(const BAlert& alert) override;
    void Tell(const std::string& text) override;
    BMessenger OpenMainWindow(Kirto& application, const BRect& frame,
                              const std::string& title) override;
    void AbandonPendingCommand() override;
    BRect ScreenFrame() override { return screen; }
    std::unique_ptr<FilePanel> MakeFilePanel(FilePanelKind kind, BMessenger target) override;
    std::string MimeTypeOf(const std::string& path) override;
    void RememberFile(const std::string& path) override;
    void OpenInBrowser(const std::string& path) override;

  private:
    std::mutex mutex_;
    std::vector<int32> answers_;  // guarded by mutex_, like the lines
    std::vector<std::string> lines_;
    std::vector<std::string> remembered_;
    AlertPresenter* previous_;
};

// "open", "insert", "insert tiled" or "save".
const char* KindName(FilePanelKind kind);

// The line of a warning with the one button "OK".
std::string WarningLine(const std::string& text);

}  // namespace kirto::test
