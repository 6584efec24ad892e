// How far apart two colors look, for choosing a palette and for mapping to it.
#pragma once

#include <array>

#include "base/types.h"

namespace kirto {

// Red, green and blue, in levels or in a finer unit.
using ColorComponents = std::array<int32, 3>;

// Squares of differences of the stored values, which sRGB spaces about evenly for the eye, count so
// much: close to what each component adds to brightness, but with enough for red and blue that the
// mean error of a photograph stays within 0.2 dB of what equal weights give.
inline constexpr ColorComponents kColorWeights = {4, 6, 3};

// Whole numbers: the same result whatever the instructions. Differences of up to 8000 don't
// overflow.
constexpr int32 ColorDistance(const ColorComponents& a, const ColorComponents& b) {
    int32 sum = 0;
    for (size_t i = 0; i < 3; ++i)
        sum += kColorWeights[i] * (a[i] - b[i]) * (a[i] - b[i]);
    return sum;
}

// Of a key: red * 65536 + green * 256 + blue.
constexpr ColorComponents ComponentsOf(uint32 key) {
    return {static_cast<int32>(key >> 16 & 0xFF), static_cast<int32>(key >> 8 & 0xFF),
            static_cast<int32>(key & 0xFF)};
}

}  // namespace kirto
