// What the benchmarks' animations show. Each painter gives the color of a pixel of a step of its
// animation by whole-number arithmetic alone: the same colors on every machine.
#pragma once

#include "base/types.h"

namespace kirto::bench {

using Painter = rgb_color (*)(int32 x, int32 y, int32 step);

// Three shaded balls over a tiled ground, 128 x 128 pixels.
rgb_color PaintSprites(int32 x, int32 y, int32 step);
// A desktop of 800 x 600 pixels: flat areas, a window of text that scrolls by a line a step, a
// progress bar and a pointer.
rgb_color PaintScreen(int32 x, int32 y, int32 step);
// Clouds of color with grain, drifting, of any size; tens of thousands of colors.
rgb_color PaintPhoto(int32 x, int32 y, int32 step);
// Each pixel one of the same 256 colors by chance, of any size.
rgb_color PaintNoise(int32 x, int32 y, int32 step);
// Rectangles of one color each that move over two more, 1920 x 1080 pixels.
rgb_color PaintFlat(int32 x, int32 y, int32 step);
// Three large shaded balls before a grainy sky, 640 x 480 pixels.
rgb_color PaintScene(int32 x, int32 y, int32 step);
// So many colors in turn, 1 to 2^24, in pictures of this width.
inline constexpr int32 kColorsWidth = 1920;
rgb_color PaintColors(int32 x, int32 y, int32 count);

}  // namespace kirto::bench
