#include "framework/qt/text_control.h"

namespace kirto {

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

}  // namespace kirto
