#include "ui/controls/painted_icon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace kirto {

void PaintedIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(static_cast<double>(rect.width()) / side_,
                   static_cast<double>(rect.height()) / side_);
    Draw(*painter, QGuiApplication::palette().color(group, QPalette::ButtonText));
    painter->restore();
}

QPixmap PaintedIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
}

}  // namespace kirto
