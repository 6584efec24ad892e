#include "formats/faithful/color_reducer.h"

#include <new>
#include <utility>

#include "color/adaptive/adaptive_palette.h"
#include "color/color_values.h"

namespace kirto {

ColorReducer::ColorReducer(const Screen& screen, AdaptiveDither dither,
                           std::vector<rgb_color> common, const Work& work)
    : screen_(screen), dither_(dither), common_(std::move(common)), work_(work) {}

ScreenPixels ColorReducer::Reduce(const ScreenPixels& before, const ScreenPixels& shown) const {
    const std::vector<rgb_color> colors = common_.empty() ? ColorsFor(before, shown) : common_;
    if (colors.empty()) return shown;
    std::vector<uint32> keys;
    keys.reserve(colors.size());
    for (const rgb_color& color : colors)
        keys.push_back(ColorKey(color.red, color.green, color.blue));
    const size_t width = static_cast<size_t>(screen_.Width());
    AdaptiveMapper mapper(colors, screen_.Width(), B_RGB32,
                          {.dither = dither_, .transparent_index = kMostColors});
    if (!mapper.HasMemory()) throw std::bad_alloc();
    std::vector<uint8> row(width * 4);
    std::vector<uint8> indices(width);
    ScreenPixels reduced = shown;
    for (int32 y = 0; y < screen_.Height() && !work_.StopRequested(); ++y) {
        uint32* const pixels = reduced.data() + screen_.At(0, y);
        FillPixels({pixels, width}, row.data());
        mapper.MapRow(y, row.data(), indices.data());
        for (size_t x = 0; x < width; ++x)
            pixels[x] = indices[x] < keys.size() ? keys[indices[x]] : kNothing;
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
    const status_t status = palette.Make(counts.Items(), kMostColors, {}, &work_);
    if (status == B_NO_MEMORY) throw std::bad_alloc();
    return {palette.Colors().begin(), palette.Colors().end()};
}

}  // namespace kirto
