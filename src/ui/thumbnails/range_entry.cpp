#include "ui/thumbnails/range_entry.h"

#include <QKeyEvent>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kCharacters = 14;  // that the field shows

}  // namespace

RangeEntry::RangeEntry(const ShownDocument& shown, BMessenger application, QWidget* thumbnails)
    : QLineEdit(thumbnails->parentWidget()),
      shown_(shown),
      application_(std::move(application)),
      thumbnails_(thumbnails) {
    setObjectName("RangeEntry");
    setAccessibleName(UiText::tr("Select frames"));
    setPlaceholderText(UiText::tr("Select frames"));
    setToolTip(UiText::tr(
        "Frames as 3-7, 0-20/2 or 0,4,7; Return selects them, Escape leaves the selection"));
    setFixedWidth(fontMetrics().horizontalAdvance("0") * kCharacters);
    hide();
}

bool RangeEntry::Begins(const QString& text) const {
    return text.size() == 1 && text[0] >= '0' && text[0] <= '9' && shown_.FrameCount() > 0;
}

void RangeEntry::Begin(const QString& text) {
    setText(text);
    move(0, parentWidget()->height() - sizeHint().height());
    show();
    raise();
    // Not by Tab, which would select the digit and let the next one replace it.
    setFocus(Qt::OtherFocusReason);
}

void RangeEntry::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Select();
        case Qt::Key_Escape:
            return thumbnails_->setFocus();
        default:
            return QLineEdit::keyPressEvent(event);
    }
}

void RangeEntry::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    hide();
}

void RangeEntry::Select() {
    const std::string frames = text().toStdString();
    if (!ParseFrameSet(frames, shown_.FrameCount())) return selectAll();
    BMessage message(kSelectFrames);
    message.AddString("frames", frames);
    application_.SendMessage(message);
    thumbnails_->setFocus();
}

}  // namespace kirto
