#include "formats/gif/pixel_mapper.h"

namespace kirto {

rgb_color PixelColor(const BBitmap* bitmap, int32 x, int32 y) {
    if (!bitmap || !Is32Bit(bitmap->ColorSpace())) return {};
    if (x >= bitmap->Width() || y >= bitmap->Height()) return {};
    const uint8* pixel = bitmap->Row(y) + static_cast<size_t>(x) * 4;
    if (IsBigEndian(bitmap->ColorSpace())) return {pixel[1], pixel[2], pixel[3], pixel[0]};
    return {pixel[2], pixel[1], pixel[0], pixel[3]};
}

PixelMapper::PixelMapper(uint8 transparent_index, bool dither, int32 max_width)
    : transparent_index_(transparent_index), dither_(dither), diffusion_(dither ? max_width : 0) {}

void PixelMapper::StartPicture(const Palette& palette, bool unconnected_rows) {
    palette_ = &palette;
    diffusing_ = dither_ && diffusion_.Ready() && palette.mode != kPaletteGreyscale;
    unconnected_rows_ = unconnected_rows;
    if (!cache_.Items().empty()) cache_ = ColorValues();
    if (diffusing_) diffusion_.StartPicture();
}

void PixelMapper::MapRow(const BBitmap* bitmap, int32 y, int32 width, std::vector<uint8>* indices) {
    indices->resize(static_cast<size_t>(width));
    if (diffusing_) diffusion_.StartRow();
    for (int32 x = 0; x < width; ++x) {
        // The last pixel's own error still goes into the rows, after the clearing.
        if (diffusing_ && unconnected_rows_ && x == width - 1) diffusion_.ClearRows();
        const rgb_color color = PixelColor(bitmap, x, y);
        (*indices)[static_cast<size_t>(x)] =
            color.alpha < 255 ? transparent_index_ : MapPixel(color, x);
    }
}

uint8 PixelMapper::MapPixel(rgb_color color, int32 x) {
    if (!diffusing_) return CachedIndex(color.red, color.green, color.blue);
    const ErrorDiffusion::Components corrected =
        diffusion_.Correct({color.red, color.green, color.blue});
    const uint8 index =
        CachedIndex(static_cast<uint8>(corrected[0]), static_cast<uint8>(corrected[1]),
                    static_cast<uint8>(corrected[2]));
    const rgb_color chosen = palette_->colors[index];
    diffusion_.Diffuse(x, {chosen.red, chosen.green, chosen.blue}, corrected);
    return index;
}

uint8 PixelMapper::CachedIndex(uint8 red, uint8 green, uint8 blue) {
    // Corrected colours hardly ever repeat, so keeping them would cost more than it saves.
    if (diffusing_) return palette_->IndexForColor(red, green, blue);
    ColorValues::Item* known = cache_.FindOrAdd(ColorKey(red, green, blue));
    // Without memory for the cache the colour is looked up again next time.
    if (!known) return palette_->IndexForColor(red, green, blue);
    if (known->value == 0) known->value = palette_->IndexForColor(red, green, blue) + 1U;
    return static_cast<uint8>(known->value - 1);
}

}  // namespace kirto
