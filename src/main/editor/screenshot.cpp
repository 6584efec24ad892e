#include "main/editor/screenshot.h"

#include <QPixmap>
#include <QTimer>
#include <cstdio>

#include "app/kirto.h"
#include "ui/shell/kirto_window.h"

namespace kirto {

namespace {

// What was asked for at the start may be passed on to the application by itself, once.
constexpr int kRounds = 2;
// Refreshes of the window may wait for the end of a display frame.
constexpr int kSettleMilliseconds = 100;

}  // namespace

Screenshot::Screenshot(Kirto& application, KirtoWindow& window, const std::string& path,
                       int* status)
    : BHandler("Screenshot"),
      application_(application),
      window_(window),
      path_(path),
      status_(status) {
    if (path_.empty()) return;
    application_.AddHandler(this);
    application_.PostMessage(BMessage(), *this);
}

void Screenshot::MessageReceived(BMessage*) {
    if (++rounds_ < kRounds) {
        application_.PostMessage(BMessage(), *this);
        return;
    }
    QMetaObject::invokeMethod(
        &window_,
        [this] { QTimer::singleShot(kSettleMilliseconds, &window_, [this] { Write(); }); },
        Qt::QueuedConnection);
}

void Screenshot::Write() {
    if (!window_.grab().save(QString::fromLocal8Bit(path_.c_str()), "PNG")) {
        std::fprintf(stderr, "kirto: %s can't be written.\n", path_.c_str());
        *status_ = 1;
    }
    application_.PostMessage(B_QUIT_REQUESTED);
}

}  // namespace kirto
