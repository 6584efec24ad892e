// What frames show, each alone on the transparent canvas.
#pragma once

#include <vector>

#include "animation/animation.h"
#include "support/random_document.h"

namespace kirto::test {

// The pixel at x,y of the plane as 0xAARRGGBB; 0 where the frame has none or it has no alpha.
uint32 PixelOnPlane(const Frame& frame, int32 x, int32 y);

// A made-up animation of a few frames, some of them with parts, or all, off the canvas; some show
// the same picture.
void FillSomehow(ChoiceSource& choices, AnimationDocument& document);

}  // namespace kirto::test
