// The pixels of frames: the one place of the benchmarks that knows how a document keeps them.
#pragma once

#include <memory>

#include "animation/frame.h"
#include "base/types.h"
#include "painters.h"

namespace kirto::bench {

// A frame that shows a step of a painter's animation; its palette is the default one. Ends the
// program when memory is short: benchmarks have nobody to report to.
Frame PaintedFrame(Painter painter, int32 width, int32 height, int32 step);

// A frame of ready pixels, width x height x 4 bytes: blue, green, red and one more.
Frame FrameOfPixels(const uint8* pixels, int32 width, int32 height);

// The picture of a frame as palettes take it; null where the frame has none.
const Picture* PictureOf(const Frame& frame);

// Reads row y of a frame's picture: width x 4 bytes in the order above.
void ReadPixels(const Frame& frame, int32 y, uint8* target);

}  // namespace kirto::bench
