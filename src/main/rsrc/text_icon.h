// Icons drawn as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kirto {

// The index of transparent pixels. It never stands for a color: white has another index too.
inline constexpr uint8 kTransparentIconIndex = 255;

// The pixels of an XPM image of side x side, row by row, as indices of the system palette; colors
// that it lacks become its nearest. Takes images with one character a pixel and colors of the form
// "#RRGGBB" or "None". Nothing, and why, for any other text.
std::optional<std::vector<uint8>> ReadTextIcon(std::string_view text, int32 side,
                                               std::string* error);

}  // namespace kirto
