#include "main/cli/picture_values.h"

#include <algorithm>
#include <cmath>

#include "base/number.h"

namespace kirto {

namespace {

constexpr int32 kLargest = 65535;

bool IsSide(int32 side) {
    return side >= 1 && side <= kLargest;
}

std::optional<CanvasSize> Bounded(double width, double height) {
    const double sides[] = {std::max(std::round(width), 1.0), std::max(std::round(height), 1.0)};
    if (!(sides[0] <= kLargest && sides[1] <= kLargest)) return std::nullopt;
    return CanvasSize{static_cast<int32>(sides[0]), static_cast<int32>(sides[1])};
}

}  // namespace

std::optional<uint32> ParseColor(std::string_view text) {
    uint32 color = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, color, 16);
    if (text.size() != 6 || result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return color;
}

std::optional<int32> ParsePercent(std::string_view text) {
    int32 percent = 0;
    if (!text.ends_with('%') || !ParseNumber(text.substr(0, text.size() - 1), &percent))
        return std::nullopt;
    if (percent < 0 || percent > 100) return std::nullopt;
    return percent;
}

std::optional<CanvasSize> ParseSize(std::string_view text) {
    const size_t cross = text.find('x');
    CanvasSize size;
    if (cross == std::string_view::npos || !ParseNumber(text.substr(0, cross), &size.width) ||
        !ParseNumber(text.substr(cross + 1), &size.height)) {
        return std::nullopt;
    }
    if (!IsSide(size.width) || !IsSide(size.height)) return std::nullopt;
    return size;
}

std::optional<CanvasSize> ParseNewSize(std::string_view text, const CanvasSize& before) {
    const double width = before.width;
    const double height = before.height;
    if (text.ends_with('%')) {
        double percent = 0;
        if (!ParseNumber(text.substr(0, text.size() - 1), &percent) || !(percent > 0))
            return std::nullopt;
        return Bounded(width * percent / 100, height * percent / 100);
    }
    int32 side = 0;
    if (text.ends_with('x')) {
        if (!ParseNumber(text.substr(0, text.size() - 1), &side) || !IsSide(side))
            return std::nullopt;
        return Bounded(side, height * side / width);
    }
    if (text.starts_with('x')) {
        if (!ParseNumber(text.substr(1), &side) || !IsSide(side)) return std::nullopt;
        return Bounded(width * side / height, side);
    }
    return ParseSize(text);
}

std::optional<std::string> TakeBehind(std::string* text, char separator) {
    const size_t place = text->find(separator);
    if (place == std::string::npos) return std::nullopt;
    std::string behind = text->substr(place + 1);
    text->resize(place);
    return behind;
}

int32 PositionIn(std::string_view list, std::string_view text) {
    for (int32 position = 0; !list.empty(); ++position) {
        const size_t end = std::min(list.find(' '), list.size());
        if (list.substr(0, end) == text) return position;
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return -1;
}

}  // namespace kirto
