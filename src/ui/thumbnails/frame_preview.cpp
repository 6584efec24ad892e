#include "ui/thumbnails/frame_preview.h"

#include <QPainter>
#include <cmath>

#include "ui/controls/picture_painter.h"

namespace kirto {

namespace {

// A current picture and a few before it.
constexpr int64 kCacheBytes = int64{32} << 20;

}  // namespace

FramePreview::FramePreview(std::function<void(int32)> scaled, QWidget* parent)
    : QWidget(parent), scaled_(std::move(scaled)), cache_(kCacheBytes) {
    setMinimumSize(64, 64);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FramePreview::ShowFrame(FramePointer frame, bool draw_transparent) {
    const bool same_picture = frame && frame_ && frame->bitmap == frame_->bitmap;
    if (same_picture && draw_transparent == draw_transparent_) return;
    frame_ = std::move(frame);
    draw_transparent_ = draw_transparent;
    ReportScale();
    update();
}

BRect FramePreview::PictureArea() const {
    if (!frame_ || !frame_->bitmap || frame_->width < 1 || frame_->height < 1) return {};
    const double scale_across = static_cast<double>(width()) / frame_->width;
    const double scale_down = static_cast<double>(height()) / frame_->height;
    const bool is_wide = scale_across <= scale_down;
    // Whole along the side that decides, so that no rounding shrinks it.
    const double across = is_wide ? width() : frame_->width * scale_down;
    const double down = is_wide ? frame_->height * scale_across : height();
    const double left = std::floor((width() - across) / 2);
    const double top = std::floor((height() - down) / 2);
    return {static_cast<float>(left), static_cast<float>(top),
            static_cast<float>(left + across - 1), static_cast<float>(top + down - 1)};
}

void FramePreview::ReportScale() {
    const BRect area = PictureArea();
    if (frame_ && area.IsValid()) scaled_(area.PixelWidth() * 100 / frame_->width);
}

void FramePreview::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ReportScale();
}

void FramePreview::paintEvent(QPaintEvent*) {
    if (!frame_ || !frame_->bitmap) return;
    QPainter painter(this);
    PicturePainter(painter, palette(), draw_transparent_, cache_)
        .Draw(frame_->bitmap, PictureArea());
}

}  // namespace kirto
