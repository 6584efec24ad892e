// Colors as text: "#rrggbb", in hexadecimal digits of either case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kirto {

// The opaque color of the text, which is nothing else. False, and nothing changes, for any other
// text.
bool ParseColor(std::string_view text, rgb_color* color);

// The different colors of a list with blanks, tabs or commas between, in their order, at most so
// many. What is no color is passed over, and false where there was any.
bool ParseColors(std::string_view text, size_t most, std::vector<rgb_color>* colors);

std::string TextOfColor(rgb_color color);

}  // namespace kirto
