// Colors as pixels in memory.
#pragma once

#include "base/types.h"
#include "color/builtin_palettes.h"
#include "picture/strip.h"

namespace kirto {

// One color in the order blue, green, red, alpha.
uint32 PixelOf(rgb_color color);

// The colors in the same order.
PixelTable PixelTableOf(const ColorTable& colors);

}  // namespace kirto
