#include "ui/shortcuts/key_field.h"

#include <QKeyEvent>
#include <utility>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

bool IsModifier(int key) {
    switch (key) {
        case 0:
        case Qt::Key_unknown:
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
        case Qt::Key_ScrollLock:
            return true;
        default:
            return false;
    }
}

bool LeadsElsewhere(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Backtab:
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            return event.modifiers() == Qt::NoModifier;
        default:
            return false;
    }
}

// Shift counts only where the character could be typed without it: "!" is no other key with it.
QKeySequence KeyOf(const QKeyEvent& event) {
    Qt::KeyboardModifiers modifiers =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool is_symbol = event.key() > Qt::Key_Space && event.key() < Qt::Key_Escape &&
                           !QChar(event.key()).isLetterOrNumber();
    if (!is_symbol) modifiers |= event.modifiers() & Qt::ShiftModifier;
    return QKeySequence(QKeyCombination(modifiers, Qt::Key(event.key())));
}

}  // namespace

KeyField::KeyField(QWidget* parent) : QLineEdit(parent) {
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    setPlaceholderText(UiText::tr("Hit a key"));
}

void KeyField::WhenHit(std::function<void(const QKeySequence& key)> hit) {
    hit_ = std::move(hit);
}

void KeyField::ShowKey(const QKeySequence& key) {
    setText(key.toString(QKeySequence::NativeText));
}

bool KeyField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void KeyField::keyPressEvent(QKeyEvent* event) {
    // Dialogs take those that reach them for their buttons.
    if (LeadsElsewhere(*event)) return event->ignore();
    if (IsModifier(event->key())) return;
    const bool clears = event->modifiers() == Qt::NoModifier &&
                        (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete);
    const QKeySequence key = clears ? QKeySequence() : KeyOf(*event);
    ShowKey(key);
    if (hit_) hit_(key);
}

}  // namespace kirto
