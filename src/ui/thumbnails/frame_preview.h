#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "animation/frame.h"
#include "kit/rect.h"
#include "ui/controls/thumbnail_cache.h"

namespace kirto {

// One picture, scaled to fit. GUI thread.
class FramePreview : public QWidget {
  public:
    // scaled: called with the scale in percent whenever it may have changed.
    explicit FramePreview(std::function<void(int32 percent)> scaled, QWidget* parent = nullptr);

    // Shows the frame; null shows none. draw_transparent: as PicturePainter's.
    void ShowFrame(FramePointer frame, bool draw_transparent);
    // The picture's rectangle in the widget's coordinates; invalid without a picture.
    BRect PictureArea() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ReportScale();

    const std::function<void(int32)> scaled_;
    FramePointer frame_;
    bool draw_transparent_ = true;
    ThumbnailCache cache_;
};

}  // namespace kirto
