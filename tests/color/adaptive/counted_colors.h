// Colors with their numbers of pixels, as a census has them, and what a palette makes of them.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <random>
#include <span>
#include <vector>

#include "base/types.h"
#include "color/adaptive/color_metric.h"
#include "color/color_values.h"
#include "color/hash_item.h"

namespace kirto::test {

using CountedColors = std::vector<ColorValues::Item>;

inline rgb_color ColorOfKey(uint32 key) {
    return {static_cast<uint8>(key >> 16), static_cast<uint8>(key >> 8), static_cast<uint8>(key),
            255};
}

// The colors of these pixels, 0xAARRGGBB whatever the alpha, by rising key.
inline CountedColors CountedColorsOf(const std::vector<uint32>& argb) {
    std::map<uint32, uint32> counts;
    for (const uint32 pixel : argb)
        ++counts[pixel & 0xFFFFFF];
    CountedColors colors;
    for (const auto& [key, count] : counts)
        colors.push_back({key, count});
    return colors;
}

// So many different colors by chance, of 1 to 9 pixels each; mask: the bits that vary.
inline CountedColors RandomCountedColors(size_t count, uint32 seed, uint32 mask = 0xFFFFFF) {
    std::mt19937 random(seed);
    std::map<uint32, uint32> colors;
    while (colors.size() < count)
        colors[static_cast<uint32>(random()) & mask] = 1 + static_cast<uint32>(random()) % 9;
    CountedColors result;
    for (const auto& [key, pixels] : colors)
        result.push_back({key, pixels});
    return result;
}

// Soft shapes of light and color with grain, opaque: what a photograph does to a palette.
inline std::vector<uint32> PhotoPixels(int32 width, int32 height, uint32 seed = 1) {
    std::mt19937 random(seed);
    const double phase = static_cast<double>(seed);
    std::vector<uint32> argb;
    for (int32 y = 0; y < height; ++y) {
        for (int32 x = 0; x < width; ++x) {
            const double u = x * 6.0 / width + phase;
            const double v = y * 5.0 / height;
            const double light = 0.5 + 0.3 * std::sin(u) * std::cos(v) + 0.2 * std::sin(3 * u + v);
            const double warmth = 0.5 + 0.5 * std::cos(u - 2 * v);
            const auto component = [&](double value) {
                const double grain = static_cast<double>(random() % 9) - 4;
                return static_cast<uint8>(std::clamp(255 * value + grain, 0.0, 255.0));
            };
            const uint8 red = component(light * (0.6 + 0.4 * warmth));
            const uint8 green = component(light * 0.8);
            const uint8 blue = component(light * (1 - 0.6 * warmth));
            argb.push_back(0xFF000000 | ColorKey(red, green, blue));
        }
    }
    return argb;
}

// The entry nearest to a color by an exhaustive search, the first among equals.
inline size_t PlainNearest(std::span<const rgb_color> entries, uint32 key) {
    const ColorComponents color = ComponentsOf(key);
    size_t nearest = 0;
    int32 least = std::numeric_limits<int32>::max();
    for (size_t i = 0; i < entries.size(); ++i) {
        const ColorComponents entry = {entries[i].red, entries[i].green, entries[i].blue};
        if (ColorDistance(color, entry) >= least) continue;
        least = ColorDistance(color, entry);
        nearest = i;
    }
    return nearest;
}

// The sum of the squared differences of a component, of all components and pixels.
inline double SquaredError(const CountedColors& colors, std::span<const rgb_color> entries) {
    double error = 0;
    for (const ColorValues::Item& item : colors) {
        const rgb_color entry = entries[PlainNearest(entries, item.key)];
        const rgb_color color = ColorOfKey(item.key);
        const int32 red = color.red - entry.red;
        const int32 green = color.green - entry.green;
        const int32 blue = color.blue - entry.blue;
        error += double{1} * item.value * (red * red + green * green + blue * blue);
    }
    return error;
}

}  // namespace kirto::test
