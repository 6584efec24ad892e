#pragma once

#include <QRect>

#include "animation/frame.h"

namespace kirto {

// Where the frame's picture lies on its canvas, scaled by two factors above 0. Frames so far away
// that no canvas reaches them are brought as near as can be painted: their own place may be as far
// as numbers go.
QRect PlaceOnCanvas(const Frame& frame, double across = 1, double down = 1);

}  // namespace kirto
