#pragma once

#include <memory>
#include <vector>

#include "animation/frame_areas.h"
#include "animation/save_differences.h"
#include "base/types.h"
#include "formats/faithful/color_reducer.h"
#include "formats/faithful/frame_plan.h"
#include "formats/faithful/screen_difference.h"

namespace kirto {

// A frame as planning takes it.
struct FrameToPlan {
    ScreenImage image;
    int32 delay = 0;  // hundredths of a second, up to 65535
    // It can be written as it was read, behind the frame before; null: it is to be made.
    std::shared_ptr<const GifSource> source;
    // What the screen is to show; null where both this frame and the one after it have a source.
    std::shared_ptr<const ScreenPixels> shown;
    // That in few colors, as ColorReducer does it with the frame before, or, for whole images, with
    // nothing; may be null.
    std::shared_ptr<const ScreenPixels> reduced;
};

// How far what is written is from what is shown.
struct Nearness {
    int64 pixels = 0;        // of all frames
    int64 changed = 0;       // that get another color
    int32 short_pauses = 0;  // that browsers make longer
    int64 distance = 0;      // of these, the sum of the differences in red, green and blue
};

// Decides, frame by frame, what of it is drawn and what becomes of the image before it: that stays,
// is cleared, or makes way for what was there, whichever leaves least to be drawn. A frame that
// looks like the one before makes that last longer. The same for the same frames. Used by one
// thread; throws std::bad_alloc.
class FramePlanner {
  public:
    // Most colors of one image.
    static constexpr size_t kMostColors = 256;

    // Both outlive this. areas: kWhole: each image has all that is shown, nothing lies below it,
    // and none is written as it was read.
    FramePlanner(const Screen& screen, const ColorReducer& reducer,
                 FrameAreas areas = FrameAreas::kChanged)
        : screen_(screen), reducer_(reducer), areas_(areas) {}

    void Add(const FrameToPlan& frame);
    const FramePlans& Plans() const { return plans_; }
    const Nearness& HowNear() const { return nearness_; }

  private:
    using Pixels = std::shared_ptr<const ScreenPixels>;

    // A way to get on from the last frame.
    struct Way {
        Disposal disposal = Disposal::kKeep;  // of the last image
        PixelRect rect;                       // of it, which may have to be larger
        Pixels below;                         // what is left
        ScreenDifference difference;          // from that to what is to be shown
    };

    void AddSource(const FrameToPlan& frame);
    bool LengthensLast(const FrameToPlan& frame);
    static int64 CostOf(const Way& way);
    // The cheapest first.
    std::vector<Way> WaysTo(const ScreenPixels& shown) const;
    // The only one for whole images.
    Way WholeWay(const ScreenPixels& shown) const;
    bool DrawsWhole() const { return areas_ == FrameAreas::kWhole; }
    Way ClearingWay(const ScreenPixels& shown, const PixelRect& lost) const;
    bool HasRoomFor(const Way& way) const;
    // Takes a color from the last image, so that there is room for an index that skips pixels.
    void ReduceLast();
    std::vector<ColorValues::Item> ColorsOfReduced(const PixelRect& rect, const ScreenPixels& below,
                                                   const ScreenPixels& shown) const;
    // Makes the plan; false when there are too many colors for this way.
    bool PlanExactly(const Way& way, const FrameToPlan& frame);
    void PlanNearly(const Way& way, const FrameToPlan& frame);
    ScreenPixels Nearly(const Way& way, const FrameToPlan& frame) const;
    void Append(const Way& way, const FrameToPlan& frame, std::vector<ColorValues::Item> colors);
    void SetDisposal(const Way& way);
    // Makes an image of the last frame, which was to be written as it was read.
    void RemakeLast();
    void CountDifference(const ScreenPixels& wanted, const ScreenPixels& shown);

    const Screen& screen_;
    const ColorReducer& reducer_;
    const FrameAreas areas_;
    FramePlans plans_;
    Pixels below_;   // the last image; null where it is written as it was read
    Pixels shown_;   // with it
    Pixels wanted_;  // what the frame itself has there: the same, or more colors
    Nearness nearness_;
};

}  // namespace kirto
