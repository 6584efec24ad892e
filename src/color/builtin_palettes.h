// The color tables that are part of the program.
#pragma once

#include <array>

#include "base/types.h"

namespace kirto {

using ColorTable = std::array<rgb_color, 256>;

// The 216 colors whose components are multiples of 51, from white at 0 to black at 215, red
// varying slowest; the entries past them are opaque black.
extern const ColorTable kWebSafeColors;
inline constexpr int32 kWebSafeSize = 216;

// The desktop's 8-bit system color map.
extern const ColorTable kSystemColors;

}  // namespace kirto
