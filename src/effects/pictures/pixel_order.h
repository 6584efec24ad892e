// Pixels of pictures as the effects on pictures compute with them.
#pragma once

#include <cstring>

#include "base/types.h"
#include "kit/bitmap.h"

namespace kirto {

// No color, no alpha; the same in every color space.
inline constexpr uint32 kTransparentPixel = 0;

// A pixel as numbers, 0 to 255.
struct ColorBytes {
    uint8 blue = 0;
    uint8 green = 0;
    uint8 red = 0;
    uint8 alpha = 0;

    bool operator==(const ColorBytes&) const = default;
};

// Between these and pixels as they lie in memory: blue first, or alpha first in the reverse order
// where big_endian is set.
inline ColorBytes ColorOf(uint32 pixel, bool big_endian) {
    uint8 bytes[4];
    std::memcpy(bytes, &pixel, sizeof(bytes));
    if (big_endian) return {bytes[3], bytes[2], bytes[1], bytes[0]};
    return {bytes[0], bytes[1], bytes[2], bytes[3]};
}

inline uint32 PixelOf(ColorBytes color, bool big_endian) {
    uint8 bytes[4] = {color.blue, color.green, color.red, color.alpha};
    if (big_endian) {
        const uint8 reversed[4] = {color.alpha, color.red, color.green, color.blue};
        std::memcpy(bytes, reversed, sizeof(bytes));
    }
    uint32 pixel = 0;
    std::memcpy(&pixel, bytes, sizeof(pixel));
    return pixel;
}

// The space of the same components in the order blue, green, red, alpha. space: a 32-bit one.
inline color_space LittleEndian(color_space space) {
    if (space == B_RGB32_BIG) return B_RGB32;
    return space == B_RGBA32_BIG ? B_RGBA32 : space;
}

}  // namespace kirto
