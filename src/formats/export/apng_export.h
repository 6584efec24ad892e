// Animated PNG files, which keep every pixel.
#pragma once

#include <vector>

#include "animation/animation.h"
#include "animation/frame_areas.h"
#include "base/types.h"
#include "base/work.h"

namespace kirto {

// The file for an animation whose canvas has a pixel at least and that has a frame. Several threads
// compress; the bytes do not depend on their number. in_seconds: the unit of the animation's
// pauses, else hundredths. Empty when the work was stopped, which is told how far it is; throws
// std::bad_alloc.
// Format: PNG specification, third edition, "11.3.6 APNG: animated PNG".
std::vector<uint8> EncodeApng(const Animation& animation, bool in_seconds, FrameAreas areas,
                              Work& work);

}  // namespace kirto
