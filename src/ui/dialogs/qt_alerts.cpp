#include "ui/dialogs/qt_alerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <future>
#include <memory>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

QMessageBox::Icon IconOf(alert_type type) {
    switch (type) {
        case B_WARNING_ALERT:
            return QMessageBox::Warning;
        case B_STOP_ALERT:
            return QMessageBox::Critical;
        default:
            return QMessageBox::Information;
    }
}

constexpr const char* kIndex = "index";

int32 LastButton(const BAlert& alert) {
    return static_cast<int32>(alert.Buttons().size()) - 1;
}

// The alert's dialog. Each button's index is its result; Escape is "Cancel", or the only button
// there is.
std::unique_ptr<QMessageBox> MakeDialog(const BAlert& alert, QWidget* parent) {
    auto box = std::make_unique<QMessageBox>(parent);
    box->setObjectName("Alert");
    box->setIcon(IconOf(alert.Type()));
    box->setWindowTitle(alert.Title().empty() ? "Kirto" : QString::fromStdString(alert.Title()));
    box->setTextFormat(Qt::PlainText);
    box->setText(UiText::tr(alert.Text().c_str()));
    for (const std::string& label : alert.Buttons()) {
        // The order of the buttons is the alert's, not one of the desktop's for roles.
        QPushButton* button = box->addButton(UiText::tr(label.c_str()), QMessageBox::ActionRole);
        // A desktop may put its mark into the text.
        const int32 index = static_cast<int32>(box->buttons().size()) - 1;
        button->setProperty(kIndex, index);
        if (label == "Cancel" || alert.Buttons().size() == 1) box->setEscapeButton(button);
        if (index == alert.DefaultButton()) box->setDefaultButton(button);
    }
    return box;
}

int32 ChosenButton(const QMessageBox& box, const BAlert& alert) {
    const QAbstractButton* button = box.clickedButton();
    return button ? button->property(kIndex).toInt() : LastButton(alert);
}

// Another thread's wait. It ends when this goes, whether somebody has answered or not.
struct Answer {
    explicit Answer(int32 without_answer) : button(without_answer) {}
    ~Answer() { promise.set_value(button); }
    std::promise<int32> promise;
    int32 button;
};

// The dialog stays up while other events are handled, and deletes itself.
void Ask(const BAlert& alert, QWidget* parent, const std::shared_ptr<Answer>& answer) {
    QMessageBox* box = MakeDialog(alert, parent).release();
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::ApplicationModal);
    QObject::connect(box, &QMessageBox::finished,
                     [box, alert, answer] { answer->button = ChosenButton(*box, alert); });
    box->show();
}

}  // namespace

QtAlerts::QtAlerts() : previous_(InstallAlertPresenter(this)) {}

QtAlerts::~QtAlerts() {
    InstallAlertPresenter(previous_);
}

int32 QtAlerts::Present(const BAlert& alert) {
    if (QThread::currentThread() == thread()) {
        const std::unique_ptr<QMessageBox> box = MakeDialog(alert, parent_window_);
        box->exec();
        return ChosenButton(*box, alert);
    }
    std::future<int32> button;
    {
        const std::lock_guard lock(mutex_);
        if (closed_) return LastButton(alert);
        auto answer = std::make_shared<Answer>(LastButton(alert));
        button = answer->promise.get_future();
        QMetaObject::invokeMethod(
            this, [this, alert, answer] { Ask(alert, parent_window_, answer); },
            Qt::QueuedConnection);
    }
    return button.get();
}

void QtAlerts::Close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    // With them the waits end.
    QCoreApplication::removePostedEvents(this);
}

}  // namespace kirto
