#pragma once

#include <QBrush>
#include <QElapsedTimer>
#include <QPainter>
#include <QPalette>
#include <memory>

#include "kit/rect.h"
#include "ui/controls/thumbnail_cache.h"

namespace kirto {

// The rectangle on whole pixels of a device with that many of them a unit; never empty.
QRectF OnPixels(const BRect& rectangle, qreal device_pixel_ratio);

// Paints scaled pictures, all of one paint event, transparent ones over a backdrop. Smooth scaling
// is slow: once a paint event has spent its share of time, pictures that are not cached yet are
// painted coarsely. GUI thread.
class PicturePainter {
  public:
    // draw_transparent: the backdrop is a quiet checkerboard, else plain grey. The painter and the
    // cache outlive this object.
    PicturePainter(QPainter& painter, const QPalette& palette, bool draw_transparent,
                   ThumbnailCache& cache);

    // Only the backdrop if the picture has no rows.
    void Draw(const std::shared_ptr<const Picture>& picture, const BRect& rectangle);

    // True when a picture was painted coarsely: paint again, later.
    bool WasCoarse() const { return was_coarse_; }

  private:
    void DrawBackdrop(const QRectF& target);
    // For pictures so large on the device that they are not kept.
    void DrawUnscaled(const std::shared_ptr<const Picture>& picture, const QRectF& target,
                      bool smooth);

    QPainter& painter_;
    ThumbnailCache& cache_;
    const qreal device_pixel_ratio_;
    const QBrush backdrop_;
    QElapsedTimer since_start_;
    bool has_scaled_ = false;
    bool was_coarse_ = false;
};

}  // namespace kirto
