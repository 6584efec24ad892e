// Values of the options that edit pictures.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/types.h"

namespace kirto {

// The nine places of a canvas, row by row, with blanks between them.
inline constexpr std::string_view kAnchorNames =
    "top-left top top-right left center right bottom-left bottom bottom-right";

struct CanvasSize {
    int32 width = 0;
    int32 height = 0;
};

// "RRGGBB" as red * 65536 + green * 256 + blue.
std::optional<uint32> ParseColor(std::string_view text);

// "25%" as 25, which is within 0 to 100.
std::optional<int32> ParsePercent(std::string_view text);

// "WxH"; both 1 to 65535.
std::optional<CanvasSize> ParseSize(std::string_view text);

// The same, or a part of it: "Wx" and "xH" keep the ratio of what there is, "N%" is that much of
// it. The nearest sizes; nothing where they are out of bounds. before: both sides above 0.
std::optional<CanvasSize> ParseNewSize(std::string_view text, const CanvasSize& before);

// Cuts the text at the first such character: what is before it stays, what is behind it is
// returned; nothing where it does not occur.
std::optional<std::string> TakeBehind(std::string* text, char separator);

// The position of the text in a list of texts with blanks between them, or -1.
int32 PositionIn(std::string_view list, std::string_view text);

}  // namespace kirto
