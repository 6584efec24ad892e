#include "ui/dialogs/text_dialog.h"

#include <QFontComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>

#include "app/caption_layout.h"
#include "document/command_codes.h"
#include "kit/qt/text_picture.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/picture_area.h"

namespace kirto {

namespace {

constexpr int kLargestPlace = 65535;

// The dialog's fields.
struct TextFields {
    PictureArea* picture = nullptr;
    QLineEdit* text = nullptr;
    QFontComboBox* font = nullptr;
    QSpinBox* size = nullptr;
    QLineEdit* color = nullptr;
    QSpinBox* outline_width = nullptr;
    QLineEdit* outline = nullptr;
    QSpinBox* x = nullptr;
    QSpinBox* y = nullptr;
    QSpinBox* fade_in = nullptr;
    QSpinBox* fade_out = nullptr;

    QImage Image() const;
    // In the middle near the lower edge, until the user says where.
    void Center(const Animation& shown) const;
    std::optional<BMessage> Command() const;
};

QImage TextFields::Image() const {
    TextStyle style;
    style.font = font->currentFont();
    style.font.setPixelSize(size->value());
    style.color = QColor(color->text());
    style.outline = QColor(outline->text());
    style.outline_width = outline_width->value();
    if (!style.color.isValid() || !style.outline.isValid()) return {};
    return PictureOfText(text->text(), style);
}

void TextFields::Center(const Animation& shown) const {
    const QImage image = Image();
    const CaptionPlace place =
        PlaceCaption(shown, image.width(), image.height(), kUsualCaptionAnchor);
    x->setValue(place.x);
    y->setValue(place.y);
}

std::optional<BMessage> TextFields::Command() const {
    const std::string bytes = PngOf(Image());
    if (bytes.empty()) return std::nullopt;
    BMessage message(kDrawText);
    message.AddData("image", B_RAW_TYPE, bytes.data(), bytes.size());
    message.AddInt32("x", x->value());
    message.AddInt32("y", y->value());
    message.AddInt32("fade_in", fade_in->value());
    message.AddInt32("fade_out", fade_out->value());
    return message;
}

QLineEdit* AddText(FormDialog& dialog, const char* name, const QString& label, const char* text) {
    auto* field = new QLineEdit(text, &dialog);
    field->setObjectName(name);
    dialog.AddField(label, field);
    return field;
}

TextFields AddFields(FormDialog& dialog, const Animation& shown) {
    const int32 frames = std::max(shown.Selection().Count(), 1);
    TextFields fields;
    fields.picture = new PictureArea(shown, &dialog);
    dialog.AddWide(fields.picture);
    fields.text = AddText(dialog, "Text", UiText::tr("&Text:"), "");
    fields.font = new QFontComboBox(&dialog);
    fields.font->setObjectName("Font");
    dialog.AddField(UiText::tr("&Font:"), fields.font);
    fields.size = dialog.AddNumber("Size", UiText::tr("&Size in pixels:"), kSmallestCaption,
                                   kLargestCaption, UsualCaptionSize(shown));
    fields.color = AddText(dialog, "Color", UiText::tr("&Color:"), "#ffffff");
    fields.outline_width = dialog.AddNumber("OutlineWidth", UiText::tr("&Outline in pixels:"), 0,
                                            kWidestOutline, kUsualOutline);
    fields.outline = AddText(dialog, "Outline", UiText::tr("Out&line color:"), "#000000");
    fields.x = dialog.AddNumber("X", UiText::tr("&X offset:"), -kLargestPlace, kLargestPlace, 0);
    fields.y = dialog.AddNumber("Y", UiText::tr("&Y offset:"), -kLargestPlace, kLargestPlace, 0);
    fields.fade_in = dialog.AddNumber("FadeIn", UiText::tr("Frames to fade &in:"), 0, frames, 0);
    fields.fade_out = dialog.AddNumber("FadeOut", UiText::tr("Frames to fade o&ut:"), 0, frames, 0);
    return fields;
}

// Shows the text on the picture as it would be drawn.
void Preview(FormDialog& dialog, const TextFields& fields) {
    fields.picture->ShowOverlay(fields.Image(), {fields.x->value(), fields.y->value()});
    dialog.Check();
}

}  // namespace

void AskForText(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    const int32 several = shown.several.Count();
    const QString scope =
        several > 0 ? UiText::tr("Draws on the %1 selected frames.").arg(several)
                    : UiText::tr("Draws on the current frame, the only one that is selected.");
    auto* dialog =
        new FormDialog("Text", UiText::tr("Text"),
                       scope + UiText::tr(" Click on the picture where it is to begin."), parent);
    const TextFields fields = AddFields(*dialog, shown);
    const auto preview = [=] { Preview(*dialog, fields); };
    // Placed by hand, it stays there whatever is typed.
    const auto placed = std::make_shared<bool>(false);
    const auto retyped = [=, canvas = shown] {
        if (!*placed) fields.Center(canvas);
        preview();
    };
    fields.picture->LetClick([=](QPoint point) {
        *placed = true;
        fields.x->setValue(point.x());
        fields.y->setValue(point.y());
    });
    for (QLineEdit* field : {fields.text, fields.color, fields.outline})
        QObject::connect(field, &QLineEdit::textChanged, dialog, retyped);
    for (QSpinBox* field : {fields.size, fields.outline_width})
        QObject::connect(field, &QSpinBox::valueChanged, dialog, retyped);
    QObject::connect(fields.font, &QFontComboBox::currentFontChanged, dialog, retyped);
    for (QSpinBox* field : {fields.x, fields.y})
        QObject::connect(field, &QSpinBox::valueChanged, dialog, preview);
    fields.text->setFocus();
    dialog->Open([=] { return fields.Command(); }, std::move(receive));
}

}  // namespace kirto
