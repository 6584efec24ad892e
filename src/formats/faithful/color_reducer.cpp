#include "formats/faithful/color_reducer.h"

#include <algorithm>
#include <new>
#include <utility>

#include "color/adaptive/adaptive_palette.h"

namespace kirto {

namespace {

std::vector<uint32> KeysOf(std::span<const rgb_color> colors) {
    std::vector<uint32> keys;
    keys.reserve(colors.size());
    for (const rgb_color& color : colors)
        keys.push_back(ColorKey(color.red, color.green, color.blue));
    return keys;
}

bool Contains(std::span<const uint32> keys, uint32 key) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

ColorReducer::ColorReducer(const Screen& screen, Options options, const Work& work)
    : screen_(screen), options_(std::move(options)), work_(work) {}

std::vector<rgb_color> ColorReducer::Occurring(std::span<const rgb_color> colors,
                                               std::span<const ColorValues::Item> counts) {
    std::vector<rgb_color> occurring;
    for (const rgb_color& color : colors) {
        const uint32 key = ColorKey(color.red, color.green, color.blue);
        if (std::any_of(counts.begin(), counts.end(),
                        [key](const ColorValues::Item& item) { return item.key == key; }))
            occurring.push_back(color);
    }
    return occurring;
}

ScreenPixels ColorReducer::Reduce(const ScreenPixels& before, const ScreenPixels& shown) const {
    const std::vector<rgb_color> colors =
        options_.common.empty() ? ColorsFor(before, shown) : options_.common;
    if (colors.empty()) return shown;
    const std::vector<uint32> keys = KeysOf(colors);
    std::vector<uint32> exact = KeysOf(options_.exact);
    std::erase_if(exact, [&](uint32 key) { return !Contains(keys, key); });
    const size_t width = static_cast<size_t>(screen_.Width());
    AdaptiveMapper mapper(colors, screen_.Width(), B_RGB32,
                          {.dither = options_.dither,
                           .strength = options_.dither_strength,
                           .transparent_index = kMostColors});
    if (!mapper.HasMemory()) throw std::bad_alloc();
    std::vector<uint8> row(width * 4);
    std::vector<uint8> indices(width);
    ScreenPixels reduced = shown;
    for (int32 y = 0; y < screen_.Height() && !work_.StopRequested(); ++y) {
        uint32* const pixels = reduced.data() + screen_.At(0, y);
        FillPixels({pixels, width}, row.data());
        mapper.MapRow(y, row.data(), indices.data());
        for (size_t x = 0; x < width; ++x) {
            // Errors of other pixels are not to change them.
            if (Contains(exact, pixels[x])) continue;
            pixels[x] = indices[x] < keys.size() ? keys[indices[x]] : kNothing;
        }
    }
    return reduced;
}

std::vector<rgb_color> ColorReducer::ColorsFor(const ScreenPixels& before,
                                               const ScreenPixels& shown) const {
    ColorValues counts(&work_);
    for (size_t i = 0; i < shown.size(); ++i) {
        if (shown[i] == before[i] || shown[i] == kNothing) continue;
        ColorValues::Item* const item = counts.FindOrAdd(shown[i]);
        if (!item && work_.StopRequested()) return {};
        if (!item) throw std::bad_alloc();
        ++item->value;
    }
    AdaptivePalette palette;
    const status_t status =
        palette.Make(counts.Items(), std::min(kMostColors, options_.most_colors),
                     Occurring(options_.exact, counts.Items()), &work_);
    if (status == B_NO_MEMORY) throw std::bad_alloc();
    return {palette.Colors().begin(), palette.Colors().end()};
}

}  // namespace kirto
