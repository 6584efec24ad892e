#include "ui/controls/picture_area.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "kit/qt/ui_text.h"
#include "ui/controls/canvas_place.h"
#include "ui/controls/picture_painter.h"

namespace kirto {

namespace {

constexpr int kMargin = 4;  // around the canvas, so that its edges can be drawn from, pixels
constexpr int kSide = 400;  // that is asked for, pixels

// On whole pixels, so that pictures that end at one place do so in the widget, too.
BRect RectOf(const QRectF& rectangle) {
    const auto edge = [](double position) { return static_cast<float>(qRound(position)); };
    return {edge(rectangle.left()), edge(rectangle.top()), edge(rectangle.right()) - 1,
            edge(rectangle.bottom()) - 1};
}

}  // namespace

PictureArea::PictureArea(const Animation& animation, QWidget* parent)
    : QWidget(parent), canvas_(PaintedCanvasOf(animation)), frame_(animation.CurrentFrame()) {
    setObjectName("PictureArea");
    setAccessibleName(UiText::tr("Picture"));
    setCursor(Qt::CrossCursor);
    setMinimumSize(kSide / 2, kSide / 2);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PictureArea::sizeHint() const {
    return {kSide, kSide * 3 / 4};
}

double PictureArea::Scale() const {
    return std::min(static_cast<double>(width() - 2 * kMargin) / canvas_.width(),
                    static_cast<double>(height() - 2 * kMargin) / canvas_.height());
}

QRectF PictureArea::PlaceOf(const QRect& area) const {
    const double scale = Scale();
    const double left = (width() - canvas_.width() * scale) / 2;
    const double top = (height() - canvas_.height() * scale) / 2;
    return {left + area.left() * scale, top + area.top() * scale, area.width() * scale,
            area.height() * scale};
}

QPoint PictureArea::CanvasPointAt(QPointF position) const {
    const QPointF inside = (position - PlaceOf(Canvas()).topLeft()) / Scale();
    return {static_cast<int>(std::floor(inside.x())), static_cast<int>(std::floor(inside.y()))};
}

void PictureArea::ShowArea(const QRect& area) {
    area_ = area & Canvas();
    update();
}

void PictureArea::ShowImage(const QImage& image, QSize canvas) {
    image_ = image;
    canvas_ = canvas.expandedTo({1, 1});
    update();
}

void PictureArea::ShowOverlay(const QImage& image, QPoint place) {
    overlay_ = image;
    overlay_place_ = place;
    update();
}

void PictureArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF canvas = PlaceOf(Canvas());
    PicturePainter pictures(painter, palette(), true, cache_);
    pictures.Draw(nullptr, RectOf(canvas));
    if (frame_) {
        painter.setClipRect(canvas);
        pictures.Draw(frame_->bitmap, RectOf(PlaceOf(PlaceOnCanvas(*frame_))));
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (!overlay_.isNull())
            painter.drawImage(PlaceOf({overlay_place_, overlay_.size()}), overlay_);
        painter.setClipping(false);
    }
    if (!image_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(canvas, image_);
    }
    if (pictures.WasCoarse()) update();
    if (area_.isEmpty()) return;
    constexpr QColor kDimmed(0, 0, 0, 128);
    QPainterPath outside;
    outside.addRect(canvas);
    outside.addRect(PlaceOf(area_));
    painter.fillPath(outside, kDimmed);
    painter.setPen(QPen(palette().highlight(), 1));
    painter.drawRect(PlaceOf(area_));
}

void PictureArea::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    start_ = CanvasPointAt(event->position());
    if (clicked_ && Canvas().contains(start_)) clicked_(start_);
}

void PictureArea::mouseMoveEvent(QMouseEvent* event) {
    if (!drawn_ || !(event->buttons() & Qt::LeftButton)) return;
    ShowArea(Drawing(CanvasPointAt(event->position())));
    if (!area_.isEmpty()) drawn_(area_);
}

// From where the button went down, pixels at both ends included, in the ratio.
QRect PictureArea::Drawing(QPoint to) const {
    const QRect canvas = Canvas();
    const auto inside = [&canvas](QPoint point) {
        return QPoint(std::clamp(point.x(), canvas.left(), canvas.right()),
                      std::clamp(point.y(), canvas.top(), canvas.bottom()));
    };
    const QPoint from = inside(start_);
    to = inside(to);
    QSize size(std::abs(to.x() - from.x()) + 1, std::abs(to.y() - from.y()) + 1);
    if (ratio_) {
        const int width = std::min(size.width(), qRound(size.height() * *ratio_));
        size = {std::max(width, 1), std::max(qRound(width / *ratio_), 1)};
    }
    const int left = to.x() < from.x() ? from.x() - size.width() + 1 : from.x();
    const int top = to.y() < from.y() ? from.y() - size.height() + 1 : from.y();
    return {QPoint(left, top), size};
}

}  // namespace kirto
