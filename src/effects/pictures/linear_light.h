// Between components as pictures keep them (sRGB, IEC 61966-2-1, 8 bits) and amounts of light, in
// which colors are mixed as light is. Pure functions.
#pragma once

#include "base/types.h"

namespace kirto {

// 0 to 1.
float LightOf(uint8 component);

// The nearest component; amounts outside 0..1 count as the nearer end.
uint8 ComponentOf(float light);

// Four numbers a pixel: blue, green and red light times alpha, and alpha, each 0 to 1. pixels: 4
// bytes each, in that order, or in the reverse one where big_endian is set.
void ToLight(const uint8* pixels, int32 count, bool big_endian, float* target);

// The reverse, with bytes in the order blue, green, red, alpha. Numbers outside 0..1 count as the
// nearer end; pixels that come out without alpha are 0.
void FromLight(const float* source, int32 count, uint8* target);

}  // namespace kirto
