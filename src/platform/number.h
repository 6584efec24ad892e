// Numbers from text.
#pragma once

#include <charconv>
#include <string_view>

namespace kirto {

// Stores the number that the whole text spells out in decimal; false, and *number untouched, for
// any other text and for numbers that the type can't hold.
template <typename Number>
bool ParseNumber(std::string_view text, Number* number) {
    Number parsed{};
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, parsed);
    if (result.ec != std::errc() || result.ptr != end) return false;
    *number = parsed;
    return true;
}

}  // namespace kirto
