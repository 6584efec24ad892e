// What is written of an animation where frames have any colors.
#pragma once

#include <memory>
#include <vector>

#include "animation/animation.h"
#include "base/types.h"

namespace kirto {

// Blue, green, red and alpha of each pixel of a canvas, the colors not multiplied by alpha, row by
// row. What is transparent has no color.
using CanvasPixels = std::vector<uint8>;
using SharedCanvas = std::shared_ptr<const CanvasPixels>;

// What the canvas shows of the frame alone. The canvas has a pixel at least. Throws std::bad_alloc.
CanvasPixels CanvasOf(const Animation& animation, const Frame& frame);

// How long each frame is shown, in whole milliseconds: each appears at most half of one early or
// late, and the whole takes as long as it is to take. in_seconds: the unit of the animation's
// pauses, else hundredths.
std::vector<int32> SpreadMilliseconds(const Animation& animation, bool in_seconds);

// How often the animation is played; 0: for ever.
int32 PlaysOf(const Animation& animation);

}  // namespace kirto
