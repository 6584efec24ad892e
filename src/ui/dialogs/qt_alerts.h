#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <mutex>

#include "kit/alert.h"

namespace kirto {

// Shows alerts as dialogs of the desktop. Made on the GUI thread; may be asked to present on any
// thread. Another thread waits for the answer, and gets the last button when the program ends
// before there is one; the GUI thread goes on handling events.
class QtAlerts : public QObject, public AlertPresenter {
  public:
    QtAlerts();
    // Must not be destroyed while another thread's alert is shown.
    ~QtAlerts() override;

    // Alerts stand in front of this window.
    void SetParentWindow(QWidget* window) { parent_window_ = window; }

    int32 Present(const BAlert& alert) override;
    // From now on all alerts of other threads get the last button, those that wait to be shown
    // among them. Called on the GUI thread when it handles no more events.
    void Close();

  private:
    std::mutex mutex_;
    bool closed_ = false;  // guarded by it
    QPointer<QWidget> parent_window_;
    AlertPresenter* previous_;
};

}  // namespace kirto
