#pragma once

#include <memory>

#include "base/pixel_budget.h"
#include "base/work.h"
#include "picture/picture.h"

namespace kirto {

// The most pixels that a side of a canvas, or of a picture that grows, may have: what GIF files
// hold.
inline constexpr int32 kMostPixelsOfASide = 65535;

// A part of a plane, in pixels; unlike PixelRect it may begin left of it or above.
struct PlaneRect {
    int32 left = 0;
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;

    bool Empty() const { return width <= 0 || height <= 0; }
    bool operator==(const PlaneRect&) const = default;
};

// What both have; empty where that is nothing.
PlaneRect Common(const PlaneRect& a, const PlaneRect& b);
// The smallest one with both; an empty one has nothing. What is past an int32 is left out.
PlaneRect Around(const PlaneRect& a, const PlaneRect& b);

// What the picture, whose first pixel is at 0,0, shows of the rectangle; transparent beyond it.
// Strips of few colors stay what they are, whole rows share their memory. rect: not empty. A pure
// function, on any thread. Null when the picture has no rows, memory is short, a rectangle that
// reaches beyond the picture has a side of more than kMostPixelsOfASide, or the work was stopped.
std::shared_ptr<const Picture> CutPicture(const Picture& picture, const PlaneRect& rect,
                                          const std::shared_ptr<PixelBudget>& budget,
                                          const Work& work);

}  // namespace kirto
