// Blends pictures pixel by pixel. Pure functions over buffers of 4-byte pixels without padding
// between rows. The target is always in the order blue, green, red, alpha; its alpha is the (first)
// source's. A source in B_RGB32 or B_RGBA32 is read in that order too, any other as alpha, red,
// green, blue. Results are truncated toward zero.
#pragma once

#include "base/types.h"
#include "effects/fade_share.h"

namespace kirto {

// share source + (1 - share) color.
void FadeToRGB(const uint8* source, color_space source_space, uint8* target, int32 width,
               int32 height, const FadeShare& share, rgb_color color);

// share first + (1 - share) second.
void FadeToFrame(const uint8* first, color_space first_space, const uint8* second,
                 color_space second_space, uint8* target, int32 width, int32 height,
                 const FadeShare& share);

}  // namespace kirto
