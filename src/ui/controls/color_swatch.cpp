#include "ui/controls/color_swatch.h"

#include <QPainter>

namespace kirto {

namespace {

constexpr int kLines = 3;  // of text, high

}  // namespace

ColorSwatch::ColorSwatch(const char* name, std::function<QColor()> color, QWidget* parent)
    : QWidget(parent), color_(std::move(color)) {
    setObjectName(QString::fromUtf8(name));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ColorSwatch::sizeHint() const {
    const int side = kLines * fontMetrics().height();
    return {side, side};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(color_());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace kirto
