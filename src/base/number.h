// Numbers from text.
#pragma once

#include <charconv>
#include <string_view>

#include "base/types.h"

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

// The decimal number that the text opens with, after blanks and one sign; what follows it counts
// for nothing. 0 where there is none ("inf" and "nan" are words), and the type's bound for a number
// that the type can't hold. A real number may have an exponent.
int32 LeadingInteger(std::string_view text);
double LeadingReal(std::string_view text);

}  // namespace kirto
