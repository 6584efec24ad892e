#include "ui/player/transport_icon.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/controls/painted_icon.h"

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

class TransportIcon : public PaintedIcon {
  public:
    explicit TransportIcon(TransportSymbol symbol) : PaintedIcon(kIconSide), symbol_(symbol) {}
    QIconEngine* clone() const override { return new TransportIcon(symbol_); }

  protected:
    void Draw(QPainter& painter, const QColor& color) const override {
        painter.fillPath(PathOf(symbol_), color);
    }

  private:
    const TransportSymbol symbol_;
};

}  // namespace

QIcon MakeTransportIcon(TransportSymbol symbol) {
    return QIcon(new TransportIcon(symbol));
}

}  // namespace kirto
