#pragma once

#include <memory>
#include <string>

#include "app/file_panel.h"
#include "kit/alert.h"
#include "kit/messenger.h"
#include "kit/rect.h"

class Kirto;

namespace kirto {

// Everything the application needs from a screen and a desktop; implemented by the windows, the
// command line and a test's script. Called on the application's thread; implementations cross to
// other threads themselves. Outlives the application.
class Desktop : public AlertPresenter {
  public:
    // Makes and shows the main window of the application, which is still being constructed, and
    // returns the window's address.
    virtual BMessenger OpenMainWindow(Kirto& application, const BRect& frame,
                                      const std::string& title) = 0;
    // Makes the main window forget the command that waits for the document to be saved.
    virtual void AbandonPendingCommand() = 0;
    // The main screen, in pixels.
    virtual BRect ScreenFrame() = 0;
    // A file panel that posts to target; not shown yet.
    virtual std::unique_ptr<FilePanel> MakeFilePanel(FilePanelKind kind, BMessenger target) = 0;
    // The file's MIME type, or an empty string when it is unknown.
    virtual std::string MimeTypeOf(const std::string& path) = 0;
    // The animation was opened, or the document saved there.
    virtual void RememberFile(const std::string& /*path*/) {}
    // Shows the file in the user's web browser, or in the viewer for its kind.
    virtual void OpenInBrowser(const std::string& path) = 0;
};

}  // namespace kirto
