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

// So many of the row's first width pixels lie in the picture.
int32 PixelsInside(const Picture* picture, int32 y, int32 width) {
    if (!picture || !picture->HasRows() || y >= picture->Height()) return 0;
    return std::min(width, picture->Width());
}

}  // namespace

void ReadColors(const Picture* picture, int32 y, int32 width, std::vector<rgb_color>* colors) {
    colors->assign(static_cast<size_t>(width), rgb_color{0, 0, 0, 0});
    const int32 inside = PixelsInside(picture, y, width);
    if (inside == 0) return;
    std::vector<uint8> row(static_cast<size_t>(inside) * 4);
    picture->Row(y).Expand(inside, row.data());
    const auto color_of = IsBigEndian(picture->ColorSpace()) ? ColorOf<true> : ColorOf<false>;
    for (size_t x = 0; x < static_cast<size_t>(inside); ++x)
        (*colors)[x] = color_of(row.data() + x * 4);
}

PixelMapper::PixelMapper(uint8 transparent_index, bool dither, int32 max_width)
    : transparent_index_(transparent_index), dither_(dither), diffusion_(dither ? max_width : 0) {}

void PixelMapper::StartPicture(const Palette& palette, bool unconnected_rows) {
    palette_ = &palette;
    diffusing_ = dither_ && diffusion_.Ready() && palette.mode != kPaletteGreyscale;
    unconnected_rows_ = unconnected_rows;
    nearest_.SetTable(palette.colors, palette.size);
    if (!diffusing_) memo_.Clear();
    table_ = nullptr;
    if (diffusing_) diffusion_.StartPicture();
}

void PixelMapper::MapRow(const Picture* picture, int32 y, int32 width,
                         std::vector<uint8>* indices) {
    indices->resize(static_cast<size_t>(width));
    const int32 inside = PixelsInside(picture, y, width);
    const bool big_endian = picture && IsBigEndian(picture->ColorSpace());
    const PixelRow row = inside > 0 ? picture->Row(y) : PixelRow();
    if (inside > 0 && !diffusing_ && !row.pixels) {
        MapIndices(row, big_endian, inside, indices->data());
    } else {
        const uint8* pixels = row.pixels;
        if (inside > 0 && !pixels) {
            row_.resize(static_cast<size_t>(inside) * 4);
            row.Expand(inside, row_.data());
            pixels = row_.data();
        }
        if (diffusing_) {
            big_endian ? DiffusePixels<true>(pixels, width, inside, indices->data())
                       : DiffusePixels<false>(pixels, width, inside, indices->data());
        } else {
            big_endian ? MapPixels<true>(pixels, inside, indices->data())
                       : MapPixels<false>(pixels, inside, indices->data());
        }
    }
    std::fill(indices->begin() + inside, indices->end(), transparent_index_);
}

// Each entry of a table is mapped once, not each pixel.
void PixelMapper::MapIndices(const PixelRow& row, bool big_endian, int32 count, uint8* indices) {
    if (!row.indices) {
        std::fill_n(indices, count, MapPixel(row.solid, big_endian));
        return;
    }
    if (*row.table != table_ || table_big_endian_ != big_endian) {
        table_ = *row.table;
        table_big_endian_ = big_endian;
        table_indices_.fill(kUnknown);
    }
    for (int32 x = 0; x < count; ++x) {
        uint16& mapped = table_indices_[row.indices[x]];
        if (mapped == kUnknown) mapped = MapPixel(table_->pixels[row.indices[x]], big_endian);
        indices[x] = static_cast<uint8>(mapped);
    }
}

uint8 PixelMapper::MapPixel(uint32 pixel, bool big_endian) {
    uint8 bytes[4];
    std::memcpy(bytes, &pixel, sizeof(bytes));
    const rgb_color color = big_endian ? ColorOf<true>(bytes) : ColorOf<false>(bytes);
    return color.alpha < 255 ? transparent_index_ : MapColor(color);
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
