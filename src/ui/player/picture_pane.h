#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "base/types.h"
#include "ui/controls/thumbnail_cache.h"

namespace kirto {

// Images on a canvas, fitted into the widget or magnified up to 32 times, with crisp pixels. The
// canvas can be zoomed by wheel, fingers and keys and dragged about; what lies below transparent
// pixels is a checkerboard. Coordinates of the canvas are its pixels. GUI thread.
class PicturePane : public QWidget {
  public:
    static constexpr double kLeastZoom = 0.02;
    static constexpr double kMostZoom = 32;

    struct Layer {
        QImage image;
        QRect place;  // on the canvas
        double opacity = 1;
    };

    explicit PicturePane(QWidget* parent = nullptr);

    // Empty without a canvas.
    void SetCanvas(QSize size);
    // From below; cut off at the canvas's edge.
    void SetLayers(std::vector<Layer> layers);
    bool IsEmpty() const { return layers_.empty(); }

    // From now on as large as fits, but small pictures are not magnified beyond recognition.
    void Fit();
    bool IsFitted() const { return !zoom_; }
    // Units of the widget for a pixel of the canvas; fixed from now on. The point of the widget
    // stays where it is on the canvas; without one the middle does.
    void SetZoom(double zoom, std::optional<QPointF> point = std::nullopt);
    double Zoom() const;
    // To the next of the usual steps.
    void ZoomIn() { SetZoom(NextZoom(true)); }
    void ZoomOut() { SetZoom(NextZoom(false)); }

    // Where that part of the canvas is in the widget, on whole pixels of the screen.
    QRectF PlaceOf(const QRect& area) const;
    // How many pixels of the screen that is.
    QSize PixelsOf(const QRect& area) const;
    // The pixel of the canvas there; none beside it.
    std::optional<QPoint> PixelAt(QPointF position) const;

    // Called when the size of pixels has changed.
    void WhenZoomed(std::function<void()> zoomed) { zoomed_ = std::move(zoomed); }
    // Called when another part of the canvas is seen, or the same part larger or smaller.
    void WhenMoved(std::function<void()> moved) { moved_ = std::move(moved); }
    // Shows the same part as the other pane, which is as large and has an equal canvas.
    void ShowLike(const PicturePane& other);
    // Called with the pixel below the pointer; with none when it leaves the canvas.
    void WhenPointed(std::function<void(std::optional<QPoint>)> pointed) {
        pointed_ = std::move(pointed);
    }
    // Called after each painting.
    void WhenPainted(std::function<void()> painted) { painted_ = std::move(painted); }

    QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    double FittingZoom() const;
    double NextZoom(bool larger) const;
    QPointF Corner() const;
    void MoveCorner(QPointF corner);
    bool Pinch(QEvent* event);
    void Point(std::optional<QPointF> position);
    void PaintCanvas(QPainter& painter);

    QSize canvas_;
    std::vector<Layer> layers_;
    std::optional<double> zoom_;  // none: fitted
    QPointF corner_;              // of the canvas in the widget, where the zoom is fixed
    std::optional<QPointF> drag_;
    std::optional<QPointF> pointer_;
    double wheel_ = 0;  // turned, and not zoomed yet
    ThumbnailCache backdrop_{1};
    std::function<void()> zoomed_;
    std::function<void()> moved_;
    std::function<void(std::optional<QPoint>)> pointed_;
    std::function<void()> painted_;
};

}  // namespace kirto
