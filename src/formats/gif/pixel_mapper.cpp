#include "formats/gif/pixel_mapper.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

template <bool kBigEndian>
rgb_color ColorOf(const uint8* pixel) {
    if constexpr (kBigEndian) return {pixel[1], pixel[2], pixel[3], pixel[0]};
    return {pixel[2], pixel[1], pixel[0], pixel[3]};
}

// So many of the row's first width pixels lie in the bitmap.
int32 PixelsInside(const BBitmap* bitmap, int32 y, int32 width) {
    if (!bitmap || !Is32Bit(bitmap->ColorSpace()) || y >= bitmap->Height()) return 0;
    return std::min(width, bitmap->Width());
}

}  // namespace

rgb_color PixelColor(const BBitmap* bitmap, int32 x, int32 y) {
    if (!bitmap || !Is32Bit(bitmap->ColorSpace())) return {};
    if (x >= bitmap->Width() || y >= bitmap->Height()) return {};
    const uint8* pixel = bitmap->Row(y) + static_cast<size_t>(x) * 4;
    return IsBigEndian(bitmap->ColorSpace()) ? ColorOf<true>(pixel) : ColorOf<false>(pixel);
}

PixelMapper::PixelMapper(uint8 transparent_index, bool dither, int32 max_width)
    : transparent_index_(transparent_index), dither_(dither), diffusion_(dither ? max_width : 0) {}

void PixelMapper::StartPicture(const Palette& palette, bool unconnected_rows) {
    palette_ = &palette;
    diffusing_ = dither_ && diffusion_.Ready() && palette.mode != kPaletteGreyscale;
    unconnected_rows_ = unconnected_rows;
    nearest_.SetTable(palette.colors, palette.size);
    if (!diffusing_) memo_.Clear();
    if (diffusing_) diffusion_.StartPicture();
}

void PixelMapper::MapRow(const BBitmap* bitmap, int32 y, int32 width, std::vector<uint8>* indices) {
    indices->resize(static_cast<size_t>(width));
    const int32 inside = PixelsInside(bitmap, y, width);
    const uint8* row = inside > 0 ? bitmap->Row(y) : nullptr;
    const bool big_endian = bitmap && IsBigEndian(bitmap->ColorSpace());
    if (diffusing_) {
        big_endian ? DiffusePixels<true>(row, width, inside, indices->data())
                   : DiffusePixels<false>(row, width, inside, indices->data());
    } else {
        big_endian ? MapPixels<true>(row, inside, indices->data())
                   : MapPixels<false>(row, inside, indices->data());
    }
    std::fill(indices->begin() + inside, indices->end(), transparent_index_);
}

template <bool kBigEndian>
void PixelMapper::MapPixels(const uint8* row, int32 count, uint8* indices) {
    for (int32 x = 0; x < count; ++x) {
        const uint8* pixel = row + static_cast<size_t>(x) * 4;
        if (x > 0 && std::memcmp(pixel, pixel - 4, 4) == 0) {
            indices[x] = indices[x - 1];
            continue;
        }
        const rgb_color color = ColorOf<kBigEndian>(pixel);
        indices[x] = color.alpha < 255 ? transparent_index_ : MapColor(color);
    }
}

uint8 PixelMapper::MapColor(rgb_color color) {
    if (palette_->mode == kPaletteGreyscale) return palette_->IndexForColor(color);
    const auto look_up = [&] { return nearest_.IndexOf(color.red, color.green, color.blue); };
    // Without memory for the memo the color is looked up again next time.
    if (!memo_.Ready()) return look_up();
    return memo_.IndexOf(ColorKey(color.red, color.green, color.blue), look_up);
}

// Corrected colors hardly ever repeat, so keeping them would cost more than it saves.
template <bool kBigEndian>
void PixelMapper::DiffusePixels(const uint8* row, int32 width, int32 count, uint8* indices) {
    diffusion_.StartRow();
    for (int32 x = 0; x < count; ++x) {
        // The last pixel's own error still goes into the rows, after the clearing.
        if (unconnected_rows_ && x == width - 1) diffusion_.ClearRows();
        const rgb_color color = ColorOf<kBigEndian>(row + static_cast<size_t>(x) * 4);
        indices[x] = transparent_index_;
        if (color.alpha < 255) continue;
        const ErrorDiffusion::Components corrected =
            diffusion_.Correct({color.red, color.green, color.blue});
        const uint8 index =
            nearest_.IndexOf(static_cast<uint8>(corrected[0]), static_cast<uint8>(corrected[1]),
                             static_cast<uint8>(corrected[2]));
        const rgb_color chosen = palette_->colors[index];
        diffusion_.Diffuse(x, {chosen.red, chosen.green, chosen.blue}, corrected);
        indices[x] = index;
    }
    if (unconnected_rows_ && count < width) diffusion_.ClearRows();
}

}  // namespace kirto
