#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/desktop.h"
#include "kit/translator_roster.h"
#include "ui/controls/recent_list.h"
#include "ui/dialogs/qt_alerts.h"
#include "ui/shell/kirto_window.h"

namespace kirto {

// The desktop of the editor: windows, dialogs and the user's other programs. Made on the GUI
// thread; the application is constructed there as well and asks from its own thread later.
class QtDesktop : public Desktop {
  public:
    // Presents alerts from now on. The roster outlives the desktop, and so does the list of recent
    // files; null: none are remembered.
    explicit QtDesktop(BTranslatorRoster& roster, RecentList* recent = nullptr);

    int32 Present(const BAlert& alert) override { return alerts_.Present(alert); }
    // In the main window's bar of notices; once it is there, what was told before.
    void Tell(const std::string& text) override;
    BMessenger OpenMainWindow(Kirto& application, const BRect& frame,
                              const std::string& title) override;
    void AbandonPendingCommand() override;
    BRect ScreenFrame() override;
    std::unique_ptr<FilePanel> MakeFilePanel(FilePanelKind kind, BMessenger target) override;
    std::string MimeTypeOf(const std::string& path) override;
    void RememberFile(const std::string& path) override;
    void OpenInBrowser(const std::string& path) override;

    // Null before the application has asked for it. GUI thread.
    KirtoWindow* MainWindow() { return window_.get(); }
    // Ends the windows, before the application that they show. From then on alerts are answered
    // with their last button.
    void CloseWindows();

  private:
    BTranslatorRoster& roster_;
    QtAlerts alerts_;
    RecentList* const recent_;
    std::unique_ptr<KirtoWindow> window_;
    BMessenger window_messenger_;
    std::vector<std::string> untold_;  // before there was a window, on the GUI thread
};

}  // namespace kirto
