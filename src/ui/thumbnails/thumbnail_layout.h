#pragma once

#include <utility>
#include <vector>

#include "animation/frame_sequence.h"
#include "animation/frame_set.h"
#include "kit/rect.h"

namespace kirto {

// The places of thumbnails: in rows from the left, all of the given height, each as wide as its
// frame requires. Coordinates are pixels of the whole grid, (0, 0) at its left top; edges are
// inclusive. A plain value.
class ThumbnailLayout {
  public:
    // Thumbnails from this one on are drawn like the others but can't be hit.
    static constexpr int32 kHitLimit = 1000;
    // What stays free above, below and between thumbnails.
    static constexpr int32 kGap = 5;

    // Lays out anew, unless nothing has changed since the last time; true when it did. height: of
    // every thumbnail, pixels, 1 or more; right_edge: of the grid, inclusive.
    bool Update(const FrameSequence& frames, int32 height, float right_edge);

    // The largest height between the two at which the content is no higher than view_height; the
    // smaller one if there is none.
    static int32 FittingHeight(const FrameSequence& frames, float right_edge, int32 view_height,
                               int32 least, int32 most);

    int32 Count() const { return static_cast<int32>(rectangles_.size()); }
    // Of thumbnail index, 0 to Count() - 1.
    BRect At(int32 index) const { return rectangles_[static_cast<size_t>(index)]; }
    // The line around a thumbnail, two pixels thick toward the right and the bottom.
    BRect OutlineAt(int32 index) const;
    // The thumbnails [first, second) whose rows, gaps included, touch top to bottom.
    std::pair<int32, int32> Between(float top, float bottom) const;
    // The grid's height with the gap at the bottom, pixels; 0 without thumbnails.
    int32 ContentHeight() const;

    // The thumbnail at the point, or -1.
    int32 HitTest(BPoint point) const;
    // The thumbnails that the rectangle touches, without regard to that limit.
    FrameSet Touching(const BRect& rectangle) const;
    // The index before which a file dropped at the point is inserted, 0 to Count().
    int32 DropPosition(BPoint point) const;
    // The bar that shows a drop position, 0 to Count().
    BRect DropBar(int32 position) const;

  private:
    bool IsWithin(float right_edge) const;
    bool IsOf(const FrameSequence& frames) const;

    FrameSequence frames_;  // that are laid out
    int32 height_ = 0;
    float right_edge_ = 0;
    std::vector<BRect> rectangles_;
};

}  // namespace kirto
