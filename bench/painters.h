// What the benchmarks' animations show. Each painter gives the colour of a pixel of a step of its
// animation by whole-number arithmetic alone: the same colours on every machine.
#pragma once

#include "base/types.h"

namespace kirto::bench {

using Painter = rgb_color (*)(int32 x, int32 y, int32 step);

// One shaded ball that bounces on a flat ground, 32 x 32 pixels.
rgb_color PaintBall(int32 x, int32 y, int32 step);
// Three shaded balls over a tiled ground, 128 x 128 pixels.
rgb_color PaintSprites(int32 x, int32 y, int32 step);
// A desktop of 800 x 600 pixels: flat areas, a window of text that scrolls by a line a step, a
// progress bar and a pointer.
rgb_color PaintScreen(int32 x, int32 y, int32 step);
// Clouds of colour with grain, drifting, of any size; tens of thousands of colours.
rgb_color PaintPhoto(int32 x, int32 y, int32 step);

}  // namespace kirto::bench
