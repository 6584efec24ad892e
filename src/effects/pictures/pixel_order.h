// Pixels of pictures as the effects on pictures compute with them.
#pragma once

#include "base/types.h"
#include "kit/bitmap.h"

namespace kirto {

// No color, no alpha; the same in every color space.
inline constexpr uint32 kTransparentPixel = 0;

// The space of the same components in the order blue, green, red, alpha. space: a 32-bit one.
inline color_space LittleEndian(color_space space) {
    if (space == B_RGB32_BIG) return B_RGB32;
    return space == B_RGBA32_BIG ? B_RGBA32 : space;
}

}  // namespace kirto
