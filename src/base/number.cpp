#include "base/number.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace kirto {

namespace {

// The text from the number's first digit or minus sign on; empty where two signs follow each other.
std::string_view NumberStart(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (!text.starts_with('+')) return text;
    text.remove_prefix(1);
    return text.starts_with('-') ? std::string_view() : text;
}

}  // namespace

int32 LeadingInteger(std::string_view text) {
    text = NumberStart(text);
    int32 number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc::result_out_of_range) return number;
    return text.starts_with('-') ? std::numeric_limits<int32>::lowest()
                                 : std::numeric_limits<int32>::max();
}

double LeadingReal(std::string_view text) {
    text = NumberStart(text);
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        // Too large or too close to 0: strtod tells the two apart.
        const std::string digits(text.data(), result.ptr);
        constexpr double kLargest = std::numeric_limits<double>::max();
        return std::clamp(std::strtod(digits.c_str(), nullptr), -kLargest, kLargest);
    }
    return std::isfinite(number) ? number : 0;
}

}  // namespace kirto
