#include "ui/controls/leading_key.h"

#include <QKeyEvent>

namespace kirto {

LeadingKey::LeadingKey(QLineEdit* field, QChar character, QWidget* next)
    : QObject(field), character_(character), next_(next) {
    field->installEventFilter(this);
}

bool LeadingKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress ||
        static_cast<const QKeyEvent*>(event)->text() != QString(character_)) {
        return QObject::eventFilter(watched, event);
    }
    // Fields select what they hold when they are entered this way.
    next_->setFocus(Qt::TabFocusReason);
    return true;
}

}  // namespace kirto
