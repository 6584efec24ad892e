#include "ui/shell/tool_icon.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/controls/painted_icon.h"

namespace kirto {

namespace {

// Lines in a square of so many units, as wide as this.
constexpr int kIconSide = 16;
constexpr double kLineWidth = 1.5;

void AddLines(QPainterPath& path, const QPolygonF& points) {
    path.addPolygon(points);
}

// A folder with its flap open.
void DrawFolder(QPainterPath& path) {
    AddLines(path, {{3, 13}, {1.75, 13}, {1.75, 3}, {6, 3}, {7.5, 5}, {12.25, 5}, {12.25, 7}});
    AddLines(path, {{3, 13}, {5.5, 7.5}, {14.75, 7.5}, {12.25, 13}, {3, 13}});
}

// A frame, and a plus at its corner.
void DrawFrameAndPlus(QPainterPath& path) {
    AddLines(path, {{7.5, 12.25}, {1.75, 12.25}, {1.75, 2.75}, {14.25, 2.75}, {14.25, 7}});
    AddLines(path, {{12, 9}, {12, 15}});
    AddLines(path, {{9, 12}, {15, 12}});
}

// An arrow that turns back to the left.
void DrawTurn(QPainterPath& path) {
    AddLines(path, {{5.5, 2.5}, {2, 6}, {5.5, 9.5}});
    path.moveTo(2, 6);
    path.lineTo(10, 6);
    path.arcTo(QRectF(6, 6, 8, 7.5), 90, -180);
    path.lineTo(6, 13.5);
}

void DrawTriangle(QPainterPath& path) {
    AddLines(path, {{4.5, 3}, {13, 8}, {4.5, 13}, {4.5, 3}});
}

// An arrow down into a tray.
void DrawArrowIntoTray(QPainterPath& path) {
    AddLines(path, {{8, 1.75}, {8, 9.75}});
    AddLines(path, {{4.75, 6.5}, {8, 9.75}, {11.25, 6.5}});
    AddLines(path, {{1.75, 9.5}, {1.75, 13.75}, {14.25, 13.75}, {14.25, 9.5}});
}

// An arrow up out of a tray.
void DrawArrowOutOfTray(QPainterPath& path) {
    AddLines(path, {{8, 9.75}, {8, 1.75}});
    AddLines(path, {{4.75, 5}, {8, 1.75}, {11.25, 5}});
    AddLines(path, {{1.75, 9.5}, {1.75, 13.75}, {14.25, 13.75}, {14.25, 9.5}});
}

// A window with a triangle in it.
void DrawWindow(QPainterPath& path) {
    path.addRect(1.75, 2.25, 12.5, 11.5);
    AddLines(path, {{1.75, 5.25}, {14.25, 5.25}});
    AddLines(path, {{6.5, 7.25}, {10, 9.5}, {6.5, 11.75}, {6.5, 7.25}});
}

QPainterPath PathOf(ToolSymbol symbol) {
    QPainterPath path;
    switch (symbol) {
        case ToolSymbol::kFolder:
            DrawFolder(path);
            break;
        case ToolSymbol::kFrameAndPlus:
            DrawFrameAndPlus(path);
            break;
        case ToolSymbol::kTurnBack:
        case ToolSymbol::kTurnForward:
            DrawTurn(path);
            break;
        case ToolSymbol::kTriangle:
            DrawTriangle(path);
            break;
        case ToolSymbol::kArrowIntoTray:
            DrawArrowIntoTray(path);
            break;
        case ToolSymbol::kArrowOutOfTray:
            DrawArrowOutOfTray(path);
            break;
        case ToolSymbol::kWindow:
            DrawWindow(path);
            break;
    }
    return path;
}

class ToolIcon : public PaintedIcon {
  public:
    explicit ToolIcon(ToolSymbol symbol) : PaintedIcon(kIconSide), symbol_(symbol) {}
    QIconEngine* clone() const override { return new ToolIcon(symbol_); }

  protected:
    void Draw(QPainter& painter, const QColor& color) const override {
        // The turn back in a mirror.
        if (symbol_ == ToolSymbol::kTurnForward)
            painter.setTransform({-1, 0, 0, 1, kIconSide, 0}, true);
        painter.setPen(QPen(color, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(PathOf(symbol_));
    }

  private:
    const ToolSymbol symbol_;
};

}  // namespace

QIcon MakeToolIcon(ToolSymbol symbol) {
    return QIcon(new ToolIcon(symbol));
}

}  // namespace kirto
