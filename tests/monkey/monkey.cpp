#include "monkey.h"

#include <QApplication>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>

#include "base/text.h"
#include "document/command_codes.h"

namespace kirto {

namespace {

constexpr size_t kKeptWaits = 5;
constexpr int kNanoseconds = 1'000'000;  // of a millisecond

constexpr std::array kKeys = {Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Return,    Qt::Key_Escape,
                              Qt::Key_Space,  Qt::Key_Delete,   Qt::Key_Left,      Qt::Key_Right,
                              Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home,      Qt::Key_End,
                              Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_F1,
                              Qt::Key_F2,     Qt::Key_F10,      Qt::Key_Plus,      Qt::Key_Minus,
                              Qt::Key_Insert, Qt::Key_Menu,     Qt::Key_0,         Qt::Key_9};

constexpr std::array kModifiers = {
    Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ControlModifier),
    Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(Qt::AltModifier),
    Qt::ControlModifier | Qt::ShiftModifier};

// Commands that take no field, as menus and buttons send them.
constexpr std::array kCommands = {
    kRemoveFrame, kMoveFrameUp, kMoveFrameDown, kReverseFrames,   kUndo,           kRedo,
    kToggleMode,  kShowPlayer,  kPlay,          kDuplicateFrames, kForwardAndBack, kStartAtCurrent};

const char* Named(const QWidget* widget) {
    static QByteArray name;
    name = widget ? (widget->objectName() + '/' + widget->metaObject()->className()).toUtf8()
                  : QByteArray("nothing");
    return name.constData();
}

QPalette DarkPalette() {
    QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    return dark;
}

}  // namespace

Monkey::Monkey(DrivenEditor& editor, std::vector<std::string> files, uint32 seed)
    : editor_(editor), files_(std::move(files)), random_(seed) {}

void Monkey::Act(int64 actions) {
    wanted_ = done_ + actions;
    Plan();
    // Dialogs that wait have loops of their own, which go on with the actions.
    while (done_ < wanted_)
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    since_.invalidate();
}

// A new timer each time: none fires while its own action waits in a dialog.
void Monkey::Plan() {
    QTimer::singleShot(0, this, [this] { DoNext(); });
}

std::string Monkey::Doing() const {
    const std::lock_guard lock(mutex_);
    return doing_;
}

void Monkey::Say(const std::string& action) {
    const std::lock_guard lock(mutex_);
    doing_ = Format("%lld. ", static_cast<long long>(done_)) + action;
}

// From the beginning of an action to that of the next lie its events and what is painted.
void Monkey::TakeTime() {
    if (since_.isValid()) {
        Wait wait{static_cast<double>(since_.nsecsElapsed()) / kNanoseconds, Doing()};
        const auto place = std::find_if(waits_.begin(), waits_.end(), [&](const Wait& other) {
            return other.milliseconds < wait.milliseconds;
        });
        waits_.insert(place, std::move(wait));
        if (waits_.size() > kKeptWaits) waits_.pop_back();
    }
    since_.start();
}

void Monkey::DoNext() {
    Plan();
    // An action that opens a dialog is over with the dialog only.
    if (done_ >= wanted_) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window != editor_.Main()) window->close();
        }
        return;
    }
    static constexpr std::array<Action, 20> kActions = {
        &Monkey::PressKey, &Monkey::PressKey,       &Monkey::PressKey, &Monkey::PressKey,
        &Monkey::TypeText, &Monkey::TypeText,       &Monkey::Click,    &Monkey::Click,
        &Monkey::Click,    &Monkey::Click,          &Monkey::Click,    &Monkey::Click,
        &Monkey::Drag,     &Monkey::Drag,           &Monkey::Turn,     &Monkey::Drop,
        &Monkey::Resize,   &Monkey::ChooseMenuItem, &Monkey::Dress,    &Monkey::SendCommand};
    TakeTime();
    ++done_;
    if (auto* dialog = qobject_cast<QFileDialog*>(Window()); dialog && AnswerFileDialog(dialog))
        return;
    (this->*kActions[Below(kActions.size())])();
}

// Where somebody's keys and clicks go.
QWidget* Monkey::Window() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    std::vector<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) windows.push_back(window);
    }
    return windows.empty() ? editor_.Main() : windows[Below(static_cast<uint32>(windows.size()))];
}

QWidget* Monkey::Somewhere() {
    QWidget* const window = Window();
    QList<QWidget*> widgets = window->findChildren<QWidget*>();
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(),
                                 [&](const QWidget* widget) {
                                     return !widget->isVisible() || widget->window() != window;
                                 }),
                  widgets.end());
    if (widgets.empty()) return window;
    return widgets[static_cast<qsizetype>(Below(static_cast<uint32>(widgets.size())))];
}

QPoint Monkey::PointOn(const QWidget& widget) {
    return {static_cast<int>(Below(static_cast<uint32>(std::max(widget.width(), 1)))),
            static_cast<int>(Below(static_cast<uint32>(std::max(widget.height(), 1))))};
}

void Monkey::PressKey() {
    const bool letter = Below(2) == 0;
    const int key = letter ? Qt::Key_A + static_cast<int>(Below(26)) : kKeys[Below(kKeys.size())];
    const Qt::KeyboardModifiers modifiers = kModifiers[Below(kModifiers.size())];
    // It would end what is to go on.
    if (key == Qt::Key_Q && (modifiers & Qt::ControlModifier)) return;
    QWidget* const window = Window();
    QWidget* const focus = window->focusWidget() ? window->focusWidget() : window;
    Say(Format("key %x+%x on %s", static_cast<unsigned>(modifiers), key, Named(focus)));
    QTest::keyClick(focus, static_cast<Qt::Key>(key), modifiers);
}

void Monkey::TypeText() {
    static constexpr const char* kTexts[] = {
        "0", "7", "-1", "99999999999", "0-3,5", "abc", "1.5", "", "%s%n", "\xC3\xA4\xE4\xB8\xAD"};
    QWidget* const window = Window();
    QWidget* const focus = window->focusWidget() ? window->focusWidget() : window;
    const char* text = kTexts[Below(std::size(kTexts))];
    Say(Format("text %s on %s", text, Named(focus)));
    // As input methods write, which know more letters than keys have.
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(focus, &event);
}

void Monkey::Click() {
    QWidget* const widget = Somewhere();
    const QPoint point = PointOn(*widget);
    const Qt::MouseButton button = Below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
    const Qt::KeyboardModifiers modifiers = kModifiers[Below(3)];
    const bool twice = Below(6) == 0;
    Say(Format("click at %d, %d on %s", point.x(), point.y(), Named(widget)));
    if (twice) {
        QTest::mouseDClick(widget, button, modifiers, point);
    } else {
        QTest::mouseClick(widget, button, modifiers, point);
    }
}

void Monkey::Drag() {
    QWidget* const widget = Somewhere();
    const QPoint start = PointOn(*widget);
    Say(Format("drag from %d, %d on %s", start.x(), start.y(), Named(widget)));
    const QPointer<QWidget> kept = widget;
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, start);
    for (uint32 moves = 1 + Below(5); kept && moves > 0; --moves)
        QTest::mouseMove(kept, PointOn(*kept));
    if (kept) QTest::mouseRelease(kept, Qt::LeftButton, Qt::NoModifier, PointOn(*kept));
}

void Monkey::Turn() {
    QWidget* const widget = Somewhere();
    const QPoint point = PointOn(*widget);
    const QPoint angle(0, Below(2) == 0 ? 120 : -120);
    Say(Format("wheel on %s", Named(widget)));
    QWheelEvent event(point, widget->mapToGlobal(point), {}, angle, Qt::NoButton,
                      kModifiers[Below(2)], Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void Monkey::Drop() {
    QWidget* const widget = Somewhere();
    const QPoint point = PointOn(*widget);
    QMimeData data;
    QList<QUrl> urls;
    for (uint32 count = 1 + Below(3); count > 0; --count) {
        urls << QUrl::fromLocalFile(
            QString::fromStdString(files_[Below(static_cast<uint32>(files_.size()))]));
    }
    data.setUrls(urls);
    Say(Format("drop of %s on %s", qPrintable(urls.front().fileName()), Named(widget)));
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &drop);
}

void Monkey::Resize() {
    QWidget* const window = Window();
    const QSize size(static_cast<int>(1 + Below(1600)), static_cast<int>(1 + Below(1200)));
    Say(Format("size %d x %d of %s", size.width(), size.height(), Named(window)));
    window->resize(size);
}

// Other letters and colors, as a desktop changes them while programs run.
void Monkey::Dress() {
    if (Below(4) != 0) return PressKey();
    static const QFont kFont = QApplication::font();
    static const QPalette kColors = QApplication::palette();
    QFont font = kFont;
    font.setPointSizeF(kFont.pointSizeF() * (1.0 + Below(5) / 4.0));
    Say(Format("letters of %f points", font.pointSizeF()));
    QApplication::setFont(font);
    QApplication::setPalette(Below(2) == 0 ? kColors : DarkPalette());
}

void Monkey::SendCommand() {
    if (Below(3) == 0) {
        const std::string& file = files_[Below(static_cast<uint32>(files_.size()))];
        BMessage open(Below(2) == 0 ? kOpenFile : kInsertFiles);
        open.AddRef("refs", entry_ref(file));
        open.AddString("video", "");
        Say("opening " + file);
        editor_.Post(open);
        return;
    }
    const uint32 command = kCommands[Below(kCommands.size())];
    Say(Format("command %x", command));
    editor_.Main()->Messenger().SendMessage(command);
}

void Monkey::ChooseMenuItem() {
    if (QApplication::activeModalWidget()) return PressKey();
    QList<QAction*> actions = editor_.Main()->menuBar()->findChildren<QAction*>();
    actions.erase(std::remove_if(actions.begin(), actions.end(),
                                 [](const QAction* action) {
                                     return !action->isEnabled() || action->menu() ||
                                            action->text().contains("Quit");
                                 }),
                  actions.end());
    if (actions.empty()) return;
    QAction* const chosen =
        actions[static_cast<qsizetype>(Below(static_cast<uint32>(actions.size())))];
    Say("menu item " + chosen->text().toStdString());
    chosen->trigger();
}

// Nothing is deleted, and nothing written but in the working folder.
bool Monkey::AnswerFileDialog(QFileDialog* dialog) {
    const bool saves = dialog->acceptMode() == QFileDialog::AcceptSave;
    Say(saves ? "a file dialog that saves" : "a file dialog that opens");
    if (Below(2) == 0) {
        dialog->reject();
        return true;
    }
    const QString file =
        saves ? QString("saved-%1.gif").arg(Below(4))
              : QString::fromStdString(files_[Below(static_cast<uint32>(files_.size()))]);
    dialog->setDirectory(".");
    if (auto* name = dialog->findChild<QLineEdit*>("fileNameEdit")) name->setText(file);
    QTest::keyClick(dialog, Qt::Key_Return);
    return true;
}

}  // namespace kirto
