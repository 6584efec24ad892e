#include "ui/shell/qt_desktop.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>
#include <utility>

#include "app/kirto.h"
#include "app/notices.h"
#include "base/core_text.h"
#include "desktop/qt/browser.h"
#include "desktop/qt/mime_types.h"
#include "document/command_codes.h"
#include "ui/file_panels/qt_file_panel.h"

namespace kirto {

QtDesktop::QtDesktop(BTranslatorRoster& roster, RecentList* recent)
    : roster_(roster), recent_(recent) {
    InstallAlertPresenter(this);
}

BMessenger QtDesktop::OpenMainWindow(Kirto& application, const BRect& frame,
                                     const std::string& title) {
    const Editor editor{
        application, application.Commands(),  application,
        roster_,     application.Resources(), [&application] { return application.LastFinding(); },
        recent_};
    window_ = std::make_unique<KirtoWindow>(frame, title.c_str(), editor);
    window_messenger_ = window_->Messenger();
    alerts_.SetParentWindow(window_.get());
    window_->show();
    for (const std::string& text : std::exchange(untold_, {}))
        Tell(text);
    return window_messenger_;
}

void QtDesktop::Tell(const std::string& text) {
    if (!window_messenger_.IsValid()) {
        untold_.push_back(text);
        return;
    }
    window_messenger_.SendMessage(MakeNotice(text, {{CoreText::Later("Close"), kCloseNotice}}));
}

void QtDesktop::CloseWindows() {
    window_.reset();
    InstallAlertPresenter(nullptr);
    alerts_.Close();
}

void QtDesktop::AbandonPendingCommand() {
    window_messenger_.SendMessage(kAbandonPending);
}

BRect QtDesktop::ScreenFrame() {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    BRect frame = BRect::OfSize(screen.width(), screen.height());
    frame.OffsetTo(static_cast<float>(screen.left()), static_cast<float>(screen.top()));
    return frame;
}

std::unique_ptr<FilePanel> QtDesktop::MakeFilePanel(FilePanelKind kind, BMessenger target) {
    return MakeQtFilePanel(kind, std::move(target), roster_, window_.get(),
                           [this] { window_->ShowPreferences("Animation"); });
}

std::string QtDesktop::MimeTypeOf(const std::string& path) {
    return kirto::MimeTypeOf(path);
}

void QtDesktop::RememberFile(const std::string& path) {
    if (recent_) recent_->Remember(path);
}

void QtDesktop::OpenInBrowser(const std::string& path) {
    if (kirto::OpenInBrowser(path)) return;
    TellQuietly(
        CoreText::Later("The preview was written, but no program to show it was found."));
}

}  // namespace kirto
