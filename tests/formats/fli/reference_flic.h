// A plain decoder of sound FLI and FLC files, to hold the fast one against. It keeps palette
// indices and the colours they were drawn in side by side, pixel by pixel.
#pragma once

#include <array>
#include <vector>

#include "base/types.h"

namespace kirto::test {

// What readers of the format do differently. The defaults are what most players do.
struct FlicDialect {
    bool components_times_four = false;      // COLOR 64: v * 4, else widened to reach 255
    bool colors_as_drawn = false;            // a palette change leaves drawn pixels alone
    bool runs_continue = false;              // past a row's end in the next row, else clipped
    bool every_negative_word_skips = false;  // else DELTA words 10xx set a line's last pixel
    bool black_is_black = false;             // BLACK chunks and the start, else index 0
};

// What FliLoad does on purpose.
inline constexpr FlicDialect kKirtoDialect = {true, true, true, true, true};

using FlicPalette = std::array<uint32, 256>;  // 0xRRGGBB

struct FlicFrame {
    int32 chunk_count = 0;
    std::vector<uint8> indices;
    std::vector<uint32> colors;  // 0xRRGGBB
};

// One frame for each record of type 0xF1FA, ring frames included. palette: what is in force before
// the first colour chunk. Bytes past the end of the file count as 0.
std::vector<FlicFrame> DecodeFlic(const std::vector<uint8>& file, const FlicDialect& dialect,
                                  const FlicPalette& palette = {});

}  // namespace kirto::test
