// What the palette computes, stated again by sorting and exhaustive search, for comparison.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <map>
#include <vector>

#include "base/types.h"
#include "color/builtin_palettes.h"
#include "picture/picture.h"

namespace kirto::test {

struct CountedColor {
    uint32 key = 0;
    uint32 count = 0;
    size_t first_pixel = 0;

    friend bool operator==(const CountedColor&, const CountedColor&) = default;
};

// The distinct colours of a B_RGB32 picture by rising green and blue, those that differ only in red
// by their first pixel.
inline std::vector<CountedColor> ReferenceColors(const Picture& picture) {
    std::map<uint32, CountedColor> by_key;
    const auto bitmap = picture.ToBitmap();
    for (size_t i = 0; i < bitmap->BitsLength() / 4; ++i) {
        const uint8* pixel = bitmap->Bits() + i * 4;
        const uint32 key = pixel[2] * 65536U + pixel[1] * 256U + pixel[0];
        CountedColor& color = by_key.try_emplace(key, CountedColor{key, 0, i}).first->second;
        ++color.count;
    }
    std::vector<CountedColor> colors;
    for (const auto& entry : by_key)
        colors.push_back(entry.second);
    std::sort(colors.begin(), colors.end(), [](const CountedColor& a, const CountedColor& b) {
        if (a.key % 65536 != b.key % 65536) return a.key % 65536 < b.key % 65536;
        return a.first_pixel < b.first_pixel;
    });
    return colors;
}

// The optimal palette of a B_RGB32 picture: a power of two of its commonest colours, then black.
inline std::vector<rgb_color> ReferenceOptimal(const Picture& picture) {
    std::vector<CountedColor> colors = ReferenceColors(picture);
    std::stable_sort(
        colors.begin(), colors.end(),
        [](const CountedColor& a, const CountedColor& b) { return a.count > b.count; });
    size_t size = 2;
    while (size < colors.size() && size < 256)
        size *= 2;
    std::vector<rgb_color> palette(size, rgb_color{0, 0, 0, 255});
    for (size_t i = 0; i < std::min(size, colors.size()); ++i) {
        const uint32 key = colors[i].key;
        palette[i] = {static_cast<uint8>(key / 65536), static_cast<uint8>(key / 256 % 256),
                      static_cast<uint8>(key % 256), 255};
    }
    return palette;
}

// The lowest index among the entries at the least distance, found by measuring all of them first.
inline uint8 ReferenceNearest(const ColorTable& colors, int32 size, rgb_color color) {
    std::vector<int32> distances;
    for (size_t i = 0; i < static_cast<size_t>(size); ++i) {
        distances.push_back(std::abs(colors[i].red - color.red) +
                            std::abs(colors[i].green - color.green) +
                            std::abs(colors[i].blue - color.blue));
    }
    const auto least = std::min_element(distances.begin(), distances.end());
    return static_cast<uint8>(least - distances.begin());
}

}  // namespace kirto::test
