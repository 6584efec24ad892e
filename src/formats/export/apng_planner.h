#pragma once

#include <optional>
#include <vector>

#include "animation/frame_areas.h"
#include "base/types.h"
#include "formats/export/export_canvas.h"
#include "picture/pixel_rect.h"

namespace kirto {

// What is drawn of a frame of an animated PNG.
struct ApngPlan {
    enum class Dispose : uint8 { kNone, kBackground, kPrevious };

    PixelRect rect;
    SharedCanvas shown;
    // What lies below, where it may show through pixels that stay as they are; else null.
    SharedCanvas below;
};

// Decides, frame by frame, which rectangle is drawn anew and what becomes of the frame before it:
// that stays, is cleared, or makes way for what was there, whichever leaves the smallest rectangle.
// A frame that looks like the one before makes that last longer. Used by one thread; throws
// std::bad_alloc.
class ApngPlanner {
  public:
    // Of a frame, for its fcTL.
    struct Control {
        PixelRect rect;
        ApngPlan::Dispose dispose = ApngPlan::Dispose::kNone;
        int64 milliseconds = 0;
    };

    // In pixels, above 0.
    ApngPlanner(int32 width, int32 height, FrameAreas areas = FrameAreas::kChanged)
        : width_(width), height_(height), areas_(areas) {}

    // Nothing where the frame makes the one before last longer.
    std::optional<ApngPlan> Add(SharedCanvas shown, int32 milliseconds);
    // Of the frames that are drawn; the last one's disposal is open until another is added.
    const std::vector<Control>& Controls() const { return controls_; }

  private:
    // A way to get on from the last frame.
    struct Way {
        ApngPlan::Dispose dispose = ApngPlan::Dispose::kNone;
        SharedCanvas below;
        PixelRect rect;  // around what differs from that
    };

    // Takes the place of all that is below.
    ApngPlan AddWhole(SharedCanvas shown, int32 milliseconds);
    PixelRect Changed(const CanvasPixels& below, const CanvasPixels& shown) const;
    Way WayOver(ApngPlan::Dispose dispose, SharedCanvas below, const CanvasPixels& shown) const;
    Way BestWay(const CanvasPixels& shown) const;
    SharedCanvas Cleared() const;
    // Whether what is drawn can leave pixels out.
    bool MayShowThrough(const Way& way, const CanvasPixels& shown) const;
    size_t At(int32 x, int32 y) const {
        return 4 * (static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x));
    }

    const int32 width_;
    const int32 height_;
    const FrameAreas areas_;
    std::vector<Control> controls_;
    SharedCanvas below_;  // the last frame
    SharedCanvas shown_;  // with it
};

}  // namespace kirto
