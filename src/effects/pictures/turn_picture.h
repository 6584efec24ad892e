#pragma once

#include <memory>

#include "base/pixel_budget.h"
#include "base/work.h"
#include "effects/pictures/cut_picture.h"
#include "picture/picture.h"

namespace kirto {

// What a plane is turned by: quarter turns and mirrors.
enum class Turn {
    kRight,  // a quarter turn clockwise
    kHalf,
    kLeft,        // a quarter turn counterclockwise
    kFlipAcross,  // left and right change places
    kFlipDown,    // top and bottom change places
};

// Whether columns become rows.
constexpr bool SwapsSides(Turn turn) {
    return turn == Turn::kRight || turn == Turn::kLeft;
}

// Where a part of a plane of that width and height is afterward.
PlaneRect Turned(const PlaneRect& rect, Turn turn, int32 width, int32 height);

// The picture turned. Colors stay what they are, and strips of few colors again become such. A pure
// function, on any thread. Null when the picture has no rows, memory is short or the work was
// stopped.
std::shared_ptr<const Picture> TurnPicture(const Picture& picture, Turn turn,
                                           const std::shared_ptr<PixelBudget>& budget,
                                           const Work& work);

}  // namespace kirto
