#pragma once

#include <QRect>

#include "animation/animation.h"

namespace kirto {

// No file has a larger canvas, though a document may say so: what is painted is no larger.
inline constexpr QSize kLargestCanvas(65535, 65535);

// The animation's canvas to be painted, of a pixel at least.
QSize PaintedCanvasOf(const Animation& animation);

// Where the frame's picture lies on its canvas, scaled by two factors above 0. Frames so far away
// that no canvas reaches them are brought as near as can be painted: their own place may be as far
// as numbers go.
QRect PlaceOnCanvas(const Frame& frame, double across = 1, double down = 1);

}  // namespace kirto
