#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>
#include <functional>
#include <optional>

#include "animation/animation.h"
#include "ui/controls/thumbnail_cache.h"

namespace kirto {

// A frame where it stands on the animation's canvas, scaled to fit, for choosing a part of the
// canvas or a point of it with the mouse. All coordinates are the canvas's, in pixels. GUI thread.
class PictureArea : public QWidget {
  public:
    // Called when the user has drawn a rectangle, or while they draw it; within the canvas.
    using Drawn = std::function<void(const QRect& area)>;
    // Called when the user has clicked on the canvas.
    using Clicked = std::function<void(QPoint point)>;

    // Shows the current frame of the animation.
    explicit PictureArea(const Animation& animation, QWidget* parent = nullptr);

    void LetDraw(Drawn drawn) { drawn_ = std::move(drawn); }
    void LetClick(Clicked clicked) { clicked_ = std::move(clicked); }
    // The rectangle that is shown; what lies outside is dimmed. Empty for none.
    void ShowArea(const QRect& area);
    // Shows the image, scaled, on a canvas of that size in place of what was shown before.
    void ShowImage(const QImage& image, QSize canvas);
    // An image over the frame, its first pixel there; null for none.
    void ShowOverlay(const QImage& image, QPoint place);
    // Of rectangles that are drawn from now on, width to height; any without one.
    void KeepRatio(std::optional<double> ratio) { ratio_ = ratio; }
    // The canvas pixel there, which may be beside the canvas.
    QPoint CanvasPointAt(QPointF position) const;
    // Where that part of the canvas is in the widget.
    QRectF PlaceOf(const QRect& area) const;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    double Scale() const;
    QRect Canvas() const { return {0, 0, canvas_.width(), canvas_.height()}; }
    QRect Drawing(QPoint to) const;

    QSize canvas_;
    const FramePointer frame_;
    QImage image_;  // over all of the canvas
    QRect area_;
    QImage overlay_;
    QPoint overlay_place_;
    Drawn drawn_;
    Clicked clicked_;
    std::optional<double> ratio_;
    QPoint start_;  // of the rectangle that is being drawn
    ThumbnailCache cache_;
};

}  // namespace kirto
