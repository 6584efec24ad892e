#include "color/palette.h"

#include <algorithm>
#include <cstdlib>

using kirto::ColorTable;

namespace {

constexpr rgb_color kOpaqueBlack{0, 0, 0, 255};

rgb_color Grey(size_t level) {
    const uint8 component = static_cast<uint8>(level);
    return {component, component, component, 255};
}

// True when every entry is its own index as a grey, whatever its alpha.
bool IsGreyRamp(const ColorTable& colors) {
    for (size_t i = 0; i < colors.size(); ++i) {
        const rgb_color& color = colors[i];
        if (color.red != i || color.green != i || color.blue != i) return false;
    }
    return true;
}

int32 Distance(rgb_color a, rgb_color b) {
    return std::abs(a.red - b.red) + std::abs(a.green - b.green) + std::abs(a.blue - b.blue);
}

}  // namespace

void Palette::SetKind(int32 kind) {
    mode = kind;
    if (kind == kirto::kPaletteGreyscale) dither = false;
}

void Palette::Set(int32 kind) {
    SetKind(kind);
    bits = 8;
    switch (kind) {
        case kirto::kPaletteWebSafe:
            colors = *web_safe;
            size = kirto::kWebSafeSize;
            break;
        case kirto::kPaletteSystem:
            colors = kirto::kSystemColors;
            size = 256;
            break;
        case kirto::kPaletteGreyscale:
            for (size_t i = 0; i < colors.size(); ++i) {
                colors[i] = Grey(i);
            }
            size = 256;
            break;
        default:
            break;
    }
}

rgb_color Palette::ColorForIndex(int32 index) const {
    const size_t entry = static_cast<uint32>(index);
    return entry < colors.size() ? colors[entry] : kOpaqueBlack;
}

uint8 Palette::IndexForColor(rgb_color color) const {
    if (mode == kirto::kPaletteGreyscale) {
        return static_cast<uint8>((color.red + 2 * color.green + color.blue) / 4);
    }
    int32 best_distance = 3 * 255;
    size_t best_index = 0;
    const size_t count = static_cast<size_t>(std::clamp(size, 0, 256));
    for (size_t i = 0; i < count && best_distance > 0; ++i) {
        const int32 distance = Distance(color, colors[i]);
        if (distance < best_distance) {
            best_distance = distance;
            best_index = i;
        }
    }
    return static_cast<uint8>(best_index);
}

uint8 Palette::IndexForColor(uint8 red, uint8 green, uint8 blue) const {
    return IndexForColor({red, green, blue, 255});
}

void Palette::RecogniseBuiltIn() {
    if (colors == *web_safe) {
        SetKind(kirto::kPaletteWebSafe);
    } else if (colors == kirto::kSystemColors) {
        SetKind(kirto::kPaletteSystem);
    } else if (IsGreyRamp(colors)) {
        SetKind(kirto::kPaletteGreyscale);
    }
}
