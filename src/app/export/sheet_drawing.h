#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "animation/animation.h"
#include "animation/frame_set.h"
#include "base/pixel_budget.h"
#include "base/work.h"
#include "formats/sheet/sheet_description.h"
#include "kit/bitmap.h"

namespace kirto {

// Frames side by side in one picture, and what is where on it. Of a frame that overhangs the
// canvas, what is on it; of one that has nothing there, a transparent pixel; of one without a
// picture, nothing. Constant once it is made; any thread.
class SheetDrawing {
  public:
    struct Layout {
        int32 columns = 0;          // 0: about as many as rows
        int32 padding = 0;          // pixels between the frames, 0 or more
        bool power_of_two = false;  // the sides of the sheet
    };

    // The most pixels that a side may have.
    static constexpr int64 kMostPixelsOfASide = 32767;

    // frames: those of the animation that are drawn. in_seconds: the unit of its pauses; else
    // hundredths.
    SheetDrawing(std::shared_ptr<const Animation> animation, bool in_seconds,
                 const FrameSet& frames, const Layout& layout);

    bool IsEmpty() const { return frames_.empty(); }
    // A side would have more than kMostPixelsOfASide.
    bool IsTooLarge() const { return std::max(width_, height_) > kMostPixelsOfASide; }
    // Without the name of the picture's file. Complete unless the sheet is empty or too large.
    const SheetDescription& Description() const { return sheet_; }
    // In B_RGBA32. Null when memory is short, and when the work was stopped, which hears how far it
    // is. Not for what is empty or too large.
    std::shared_ptr<BBitmap> Draw(const std::shared_ptr<PixelBudget>& budget, Work& work) const;

  private:
    void Arrange(const FrameSet& frames, const Layout& layout);
    SheetFrame DescriptionOf(const Frame& frame) const;
    bool DrawFrame(size_t i, const Work& work, BBitmap& sheet) const;

    const std::shared_ptr<const Animation> animation_;
    const bool in_seconds_;
    std::vector<FramePointer> frames_;
    SheetDescription sheet_;
    int64 width_ = 0;  // of the sheet, whatever that is
    int64 height_ = 0;
};

}  // namespace kirto
