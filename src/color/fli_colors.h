// The color chunks of FLI and FLC files.
#pragma once

#include <span>

#include "base/types.h"
#include "color/builtin_palettes.h"

namespace kirto {

// Carries out the packets of a color chunk's data: each skips entries of the table and fills those
// after them. Components are multiplied by the factor and keep the low byte. What lies past the
// last entry is dropped; packets end early where the data does. widen: a component's two highest
// bits are repeated below the others, so that with a factor of 4 the largest becomes 255.
void ReadFliColors(std::span<const uint8> data, int32 factor, ColorTable* colors,
                   bool widen = false);

}  // namespace kirto
