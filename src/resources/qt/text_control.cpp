#include "resources/qt/text_control.h"

#include <QAction>
#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace kirto {

namespace {

// What they do to frames they do to the text.
constexpr QKeyCombination kKeysOfText[] = {Qt::CTRL | Qt::Key_A, Qt::CTRL | Qt::Key_X,
                                           Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_V};

bool IsShortcutOf(const QWidget& window, const QKeyEvent& press) {
    if (press.modifiers() == Qt::NoModifier) return false;
    if (std::find(std::begin(kKeysOfText), std::end(kKeysOfText), press.keyCombination()) !=
        std::end(kKeysOfText))
        return false;
    const QKeySequence keys(press.keyCombination());
    const QList<QAction*> actions = window.findChildren<QAction*>();
    return std::any_of(actions.begin(), actions.end(),
                       [&](const QAction* action) { return action->shortcuts().contains(keys); });
}

}  // namespace

TextControl::TextControl(const char* name, const BMessage& message, BMessenger target,
                         QWidget* parent)
    : QLineEdit(parent), message_(message), target_(std::move(target)) {
    setObjectName(QString::fromUtf8(name));
    setAccessibleName(objectName());
    connect(this, &QLineEdit::editingFinished, this, &TextControl::Commit);
}

void TextControl::Commit() {
    if (!isModified()) return;
    setModified(false);
    target_.SendMessage(message_);
}

void TextControl::SetText(const QString& new_text) {
    if (text() != new_text) setText(new_text);
    setModified(false);
}

void TextControl::ShowText(const QString& new_text) {
    if (!IsBeingEdited()) SetText(new_text);
}

bool TextControl::event(QEvent* event) {
    const bool is_key =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    // Also where the menu's item is disabled: a key that mostly moves a frame never deletes text.
    if (is_key && IsShortcutOf(*window(), *static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true;
    }
    return QLineEdit::event(event);
}

}  // namespace kirto
