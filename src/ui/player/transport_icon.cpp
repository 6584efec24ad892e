#include "ui/player/transport_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace kirto {

namespace {

// In a square of 16 units.
constexpr int kIconSide = 16;
constexpr double kTop = 3;
constexpr double kBottom = 13;
constexpr double kMiddle = 8;

void AddTriangle(QPainterPath& path, double base, double tip) {
    path.addPolygon(QPolygonF({{base, kTop}, {tip, kMiddle}, {base, kBottom}}));
    path.closeSubpath();
}

void AddBar(QPainterPath& path, double left, double width) {
    path.addRect(left, kTop, width, kBottom - kTop);
}

QPainterPath PathOf(TransportSymbol symbol) {
    QPainterPath path;
    switch (symbol) {
        case TransportSymbol::kToStart:
            AddBar(path, 3, 2);
            AddTriangle(path, 13, 5.5);
            break;
        case TransportSymbol::kBack:
            AddTriangle(path, 9, 3);
            AddBar(path, 11, 2);
            break;
        case TransportSymbol::kPlay:
            AddTriangle(path, 4, 13);
            break;
        case TransportSymbol::kPause:
            AddBar(path, 4, 3);
            AddBar(path, 9, 3);
            break;
        case TransportSymbol::kForward:
            AddTriangle(path, 7, 13);
            AddBar(path, 3, 2);
            break;
        case TransportSymbol::kToEnd:
            AddTriangle(path, 3, 10.5);
            AddBar(path, 11, 2);
            break;
    }
    return path;
}

// Asks for the colors whenever it is painted, so that it follows the desktop from light to dark.
class TransportIconEngine : public QIconEngine {
  public:
    explicit TransportIconEngine(TransportSymbol symbol) : symbol_(symbol) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(static_cast<double>(rect.width()) / kIconSide,
                       static_cast<double>(rect.height()) / kIconSide);
        painter->fillPath(PathOf(symbol_),
                          QGuiApplication::palette().color(group, QPalette::ButtonText));
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new TransportIconEngine(symbol_); }

  private:
    const TransportSymbol symbol_;
};

}  // namespace

QIcon MakeTransportIcon(TransportSymbol symbol) {
    return QIcon(new TransportIconEngine(symbol));
}

}  // namespace kirto
