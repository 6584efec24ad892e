#include "color/color_text.h"

#include <algorithm>
#include <charconv>

#include "base/text.h"

namespace kirto {

namespace {

constexpr size_t kColorLength = 7;
constexpr std::string_view kSeparators = " \t,";

}  // namespace

bool ParseColor(std::string_view text, rgb_color* color) {
    if (text.size() != kColorLength || text.front() != '#') return false;
    uint32 number = 0;
    const char* const end = text.data() + text.size();
    const auto [parsed, error] = std::from_chars(text.data() + 1, end, number, 16);
    if (error != std::errc() || parsed != end) return false;
    *color = {static_cast<uint8>(number >> 16), static_cast<uint8>(number >> 8),
              static_cast<uint8>(number), 255};
    return true;
}

bool ParseColors(std::string_view text, size_t most, std::vector<rgb_color>* colors) {
    bool all = true;
    colors->clear();
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(kSeparators), text.size()));
        if (text.empty()) return all;
        const std::string_view word = text.substr(0, text.find_first_of(kSeparators));
        text.remove_prefix(word.size());
        rgb_color color{};
        if (!ParseColor(word, &color)) {
            all = false;
        } else if (colors->size() < most &&
                   std::find(colors->begin(), colors->end(), color) == colors->end()) {
            colors->push_back(color);
        }
    }
}

std::string TextOfColor(rgb_color color) {
    return Format("#%02x%02x%02x", color.red, color.green, color.blue);
}

}  // namespace kirto
