#include "ui/player/picture_pane.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "kit/qt/ui_text.h"
#include "ui/controls/picture_painter.h"

namespace kirto {

namespace {

constexpr int kPaneMargin = 6;  // around a fitted canvas, units of the widget
constexpr double kMostFittedZoom = 8;
constexpr double kZooms[] = {0.02, 0.05, 0.1, 0.25, 0.5, 0.75, 1,  1.5, 2,
                             3,    4,    6,   8,    12,  16,   24, 32};

BRect ExactRectOf(const QRectF& rectangle) {
    return {static_cast<float>(rectangle.left()), static_cast<float>(rectangle.top()),
            static_cast<float>(rectangle.right()) - 1, static_cast<float>(rectangle.bottom()) - 1};
}

}  // namespace

PicturePane::PicturePane(QWidget* parent) : QWidget(parent) {
    setObjectName("PicturePane");
    setAccessibleName(UiText::tr("Picture"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(120, 80);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    grabGesture(Qt::PinchGesture);
}

QSize PicturePane::sizeHint() const {
    return {400, 260};
}

void PicturePane::SetCanvas(QSize size) {
    if (size == canvas_) return;
    canvas_ = size;
    if (zoomed_) zoomed_();
    update();
}

void PicturePane::SetLayers(std::vector<Layer> layers) {
    layers_ = std::move(layers);
    update();
    if (pointer_) Point(pointer_);
}

double PicturePane::FittingZoom() const {
    if (canvas_.isEmpty()) return 1;
    const double across = static_cast<double>(width() - 2 * kPaneMargin) / canvas_.width();
    const double down = static_cast<double>(height() - 2 * kPaneMargin) / canvas_.height();
    const double zoom = std::min(across, down);
    // Pixels of whole or half units look alike.
    const double crisp = zoom > 1 ? std::floor(zoom * 2) / 2 : zoom;
    return std::clamp(crisp, kLeastZoom, kMostFittedZoom);
}

double PicturePane::Zoom() const {
    return zoom_ ? *zoom_ : FittingZoom();
}

QPointF PicturePane::Corner() const {
    if (zoom_) return corner_;
    const double zoom = FittingZoom();
    return {(width() - canvas_.width() * zoom) / 2, (height() - canvas_.height() * zoom) / 2};
}

void PicturePane::Fit() {
    zoom_.reset();
    update();
    if (zoomed_) zoomed_();
    if (moved_) moved_();
}

void PicturePane::SetZoom(double zoom, std::optional<QPointF> point) {
    const QPointF fixed = point.value_or(QPointF(width() / 2.0, height() / 2.0));
    const QPointF on_canvas = (fixed - Corner()) / Zoom();
    zoom_ = std::clamp(zoom, kLeastZoom, kMostZoom);
    MoveCorner(fixed - on_canvas * *zoom_);
    if (zoomed_) zoomed_();
    if (pointer_) Point(pointer_);
}

double PicturePane::NextZoom(bool larger) const {
    constexpr double kNearly = 1e-6;
    const double zoom = Zoom();
    if (larger) {
        const auto* next = std::upper_bound(std::begin(kZooms), std::end(kZooms), zoom + kNearly);
        return next == std::end(kZooms) ? kMostZoom : *next;
    }
    const auto* next = std::lower_bound(std::begin(kZooms), std::end(kZooms), zoom - kNearly);
    return next == std::begin(kZooms) ? kLeastZoom : *std::prev(next);
}

// A canvas that is smaller than the widget stands in its middle; a larger one leaves no gap.
void PicturePane::MoveCorner(QPointF corner) {
    const auto place = [](double wanted, double content, double room) {
        if (content <= room) return (room - content) / 2;
        return std::clamp(wanted, room - content, 0.0);
    };
    corner_ = {place(corner.x(), canvas_.width() * Zoom(), width()),
               place(corner.y(), canvas_.height() * Zoom(), height())};
    update();
    if (moved_) moved_();
}

void PicturePane::ShowLike(const PicturePane& other) {
    zoom_ = other.zoom_;
    corner_ = other.corner_;
    update();
    if (zoomed_) zoomed_();
}

QRectF PicturePane::PlaceOf(const QRect& area) const {
    const double zoom = Zoom();
    const double ratio = devicePixelRatioF();
    const QPointF corner = Corner();
    const auto edge = [&](double start, int position) {
        return std::round((start + position * zoom) * ratio) / ratio;
    };
    const QPointF top_left(edge(corner.x(), area.x()), edge(corner.y(), area.y()));
    const QPointF end(edge(corner.x(), area.x() + area.width()),
                      edge(corner.y(), area.y() + area.height()));
    return {top_left, end};
}

QSize PicturePane::PixelsOf(const QRect& area) const {
    return (PlaceOf(area).size() * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

std::optional<QPoint> PicturePane::PixelAt(QPointF position) const {
    const QPointF inside = (position - Corner()) / Zoom();
    const QPoint pixel(static_cast<int>(std::floor(inside.x())),
                       static_cast<int>(std::floor(inside.y())));
    if (!QRect(QPoint(), canvas_).contains(pixel)) return std::nullopt;
    return pixel;
}

void PicturePane::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!canvas_.isEmpty() && !layers_.empty()) PaintCanvas(painter);
    if (painted_) painted_();
}

void PicturePane::PaintCanvas(QPainter& painter) {
    const QRectF canvas = PlaceOf(QRect(QPoint(), canvas_));
    const Layer& lowest = layers_.front();
    const bool covered = lowest.place == QRect(QPoint(), canvas_) && !lowest.image.isNull() &&
                         !lowest.image.hasAlphaChannel();
    if (!covered)
        PicturePainter(painter, palette(), true, backdrop_).Draw(nullptr, ExactRectOf(canvas));
    painter.save();
    painter.setClipRect(canvas);
    for (const Layer& layer : layers_) {
        painter.setOpacity(layer.opacity);
        painter.drawImage(PlaceOf(layer.place), layer.image);
    }
    painter.restore();
    const double line = 1 / devicePixelRatioF();
    painter.setPen(QPen(palette().color(QPalette::Mid), line));
    painter.drawRect(canvas.adjusted(-line / 2, -line / 2, line / 2, line / 2));
}

void PicturePane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (zoom_) MoveCorner(corner_);
    if (zoomed_) zoomed_();
}

// Wheels that turn without steps zoom as soon as they have turned by one.
void PicturePane::wheelEvent(QWheelEvent* event) {
    constexpr double kStep = 120;
    wheel_ += event->angleDelta().y();
    while (std::abs(wheel_) >= kStep) {
        const bool larger = wheel_ > 0;
        SetZoom(NextZoom(larger), event->position());
        wheel_ -= larger ? kStep : -kStep;
    }
    event->accept();
}

bool PicturePane::Pinch(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        const auto& gesture = *static_cast<QNativeGestureEvent*>(event);
        if (gesture.gestureType() != Qt::ZoomNativeGesture) return false;
        SetZoom(Zoom() * (1 + gesture.value()), gesture.position());
        return true;
    }
    auto* pinch =
        static_cast<QPinchGesture*>(static_cast<QGestureEvent*>(event)->gesture(Qt::PinchGesture));
    if (!pinch) return false;
    SetZoom(Zoom() * pinch->scaleFactor(), mapFromGlobal(pinch->hotSpot()));
    return true;
}

bool PicturePane::event(QEvent* event) {
    const bool pinches = event->type() == QEvent::NativeGesture || event->type() == QEvent::Gesture;
    return (pinches && Pinch(event)) || QWidget::event(event);
}

void PicturePane::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::RightButton) return;
    drag_ = event->position();
}

void PicturePane::mouseMoveEvent(QMouseEvent* event) {
    if (drag_ && zoom_) {
        MoveCorner(corner_ + event->position() - *drag_);
        drag_ = event->position();
    }
    Point(event->position());
}

void PicturePane::mouseReleaseEvent(QMouseEvent*) {
    drag_.reset();
}

void PicturePane::leaveEvent(QEvent*) {
    Point(std::nullopt);
}

void PicturePane::Point(std::optional<QPointF> position) {
    pointer_ = position;
    if (pointed_) pointed_(position ? PixelAt(*position) : std::nullopt);
}

}  // namespace kirto
