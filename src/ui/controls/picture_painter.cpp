#include "ui/controls/picture_painter.h"

#include <algorithm>
#include <cmath>

#include "ui/controls/image_of.h"

namespace kirto {

namespace {

constexpr qint64 kScalingMilliseconds = 25;
constexpr int64 kMostPixelsKept = int64{16} << 20;
constexpr int kSquare = 6;

// Between the colors of text and of what it stands on, in per cent of the text's.
QColor Blend(const QPalette& palette, int text_percent) {
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mix = [text_percent](int from, int to) {
        return from + (to - from) * text_percent / 100;
    };
    return QColor(mix(base.red(), text.red()), mix(base.green(), text.green()),
                  mix(base.blue(), text.blue()));
}

QBrush Backdrop(const QPalette& palette, bool checkerboard) {
    if (!checkerboard) return Blend(palette, 25);
    QImage squares(2 * kSquare, 2 * kSquare, QImage::Format_RGB32);
    squares.fill(Blend(palette, 3));
    QPainter painter(&squares);
    const QColor dark = Blend(palette, 12);
    painter.fillRect(0, 0, kSquare, kSquare, dark);
    painter.fillRect(kSquare, kSquare, kSquare, kSquare, dark);
    return QBrush(squares);
}

}  // namespace

QRectF OnPixels(const BRect& rectangle, qreal device_pixel_ratio) {
    const auto to_pixels = [device_pixel_ratio](float units) {
        return std::round(static_cast<qreal>(units) * device_pixel_ratio);
    };
    const qreal width = std::max(to_pixels(rectangle.Width() + 1), 1.0);
    const qreal height = std::max(to_pixels(rectangle.Height() + 1), 1.0);
    return {to_pixels(rectangle.left) / device_pixel_ratio,
            to_pixels(rectangle.top) / device_pixel_ratio, width / device_pixel_ratio,
            height / device_pixel_ratio};
}

PicturePainter::PicturePainter(QPainter& painter, const QPalette& palette, bool draw_transparent,
                               ThumbnailCache& cache)
    : painter_(painter),
      cache_(cache),
      device_pixel_ratio_(painter.device()->devicePixelRatioF()),
      backdrop_(Backdrop(palette, draw_transparent)) {
    since_start_.start();
}

void PicturePainter::Draw(const std::shared_ptr<const Picture>& picture, const BRect& rectangle) {
    const QRectF target = OnPixels(rectangle, device_pixel_ratio_);
    const QSize size = (target.size() * device_pixel_ratio_).toSize();
    if (int64{size.width()} * size.height() > kMostPixelsKept) {
        DrawUnscaled(picture, target, true);
        return;
    }
    QImage image = cache_.Find(picture, size);
    if (image.isNull()) {
        if (has_scaled_ && since_start_.elapsed() > kScalingMilliseconds) {
            was_coarse_ = true;
            DrawUnscaled(picture, target, false);
            return;
        }
        has_scaled_ = true;
        image = cache_.Scaled(picture, size);
    }
    if (image.isNull() || image.hasAlphaChannel()) DrawBackdrop(target);
    image.setDevicePixelRatio(device_pixel_ratio_);
    painter_.drawImage(target.topLeft(), image);
}

void PicturePainter::DrawBackdrop(const QRectF& target) {
    painter_.setBrushOrigin(target.topLeft());
    painter_.fillRect(target, backdrop_);
}

void PicturePainter::DrawUnscaled(const std::shared_ptr<const Picture>& picture,
                                  const QRectF& target, bool smooth) {
    const QSize size = (target.size() * device_pixel_ratio_).toSize();
    const QImage image = ImageOf(picture, size);
    if (image.isNull() || image.hasAlphaChannel()) DrawBackdrop(target);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
    painter_.drawImage(target, image);
}

}  // namespace kirto
