#include "ui/controls/color_button.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

#include "ui/controls/color_swatch.h"
#include "ui/controls/rt_color_control.h"

namespace kirto {

namespace {

// As sharp as the screen it is on.
QIcon IconOf(const QColor& color, const QSize& size, const QWidget& widget) {
    const double ratio = widget.devicePixelRatioF();
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(widget.palette().color(QPalette::Mid));
    QPainter(&pixmap).fillRect(QRect(QPoint(0, 0), size).adjusted(1, 1, -1, -1), color);
    return pixmap;
}

}  // namespace

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    SetColor(Qt::white);
    connect(this, &QPushButton::clicked, this, [this] { Choose(); });
}

void ColorButton::SetColor(const QColor& color) {
    color_ = color;
    setText(color.name());
    setIcon(IconOf(color, iconSize(), *this));
}

void ColorButton::Choose() {
    auto* dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("ChooseColor");
    dialog->setWindowTitle(accessibleName());
    auto* control = new RTColorControl("ColorControl", dialog);
    auto* preview = new ColorSwatch(
        "Preview", [control] { return control->Color(); }, dialog);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(control);
    layout->addWidget(preview, 1);
    layout->addWidget(buttons);
    control->SetValue(static_cast<int32>(static_cast<uint32>(color_.rgb()) << 8));
    connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    connect(dialog, &QDialog::accepted, this, [this, control] {
        if (control->Color() == color_) return;
        SetColor(control->Color());
        if (chosen_) chosen_();
    });
    dialog->open();
}

}  // namespace kirto
