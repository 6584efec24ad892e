#include "formats/gif/pixel_mapper.h"

#include <algorithm>
#include <cstring>

namespace kirto {

using Components = ErrorDiffusion::Components;

namespace {

template <bool kBigEndian>
rgb_color ColorOf(const uint8* pixel) {
    if constexpr (kBigEndian) return {pixel[1], pixel[2], pixel[3], pixel[0]};
    return {pixel[2], pixel[1], pixel[0], pixel[3]};
}

// The bytes of a pixel, in their order.
Components ComponentsOf(const uint8* pixel) {
    return Components{pixel[0], pixel[1], pixel[2], pixel[3]};
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
    const Colors colors{palette.mode, palette.size, palette.colors};
    if (colors_ != colors) SetColors(colors);
    diffusing_ = dither_ && diffusion_.Ready() && palette.mode != kPaletteGreyscale;
    unconnected_rows_ = unconnected_rows;
    next_y_ = -1;
    if (diffusing_) diffusion_.ClearRow();
}

void PixelMapper::SetColors(const Colors& colors) {
    colors_ = colors;
    nearest_.SetTable(colors.table, colors.size);
    memo_.Clear();
    table_ = nullptr;
    chosen_big_endian_.reset();
}

std::span<const uint8> PixelMapper::MapRow(const Picture* picture, int32 y, int32 width) {
    const int32 inside = PixelsInside(picture, y, width);
    if (diffusing_) return DiffuseRow(picture, y, width, inside);
    indices_.resize(static_cast<size_t>(width));
    if (inside > 0) {
        const bool big_endian = IsBigEndian(picture->ColorSpace());
        const PixelRow row = picture->Row(y);
        if (!row.pixels) {
            MapIndices(row, big_endian, inside, indices_.data());
        } else {
            big_endian ? MapPixels<true>(row.pixels, inside, indices_.data())
                       : MapPixels<false>(row.pixels, inside, indices_.data());
        }
    }
    std::fill(indices_.begin() + inside, indices_.end(), transparent_index_);
    return indices_;
}

// Each entry of a table is mapped once, not each pixel.
void PixelMapper::MapIndices(const PixelRow& row, bool big_endian, int32 count, uint8* indices) {
    if (!row.indices) {
        std::fill_n(indices, count, MapPixel(row.solid, big_endian));
        return;
    }
    if (*row.table != table_ || table_big_endian_ != big_endian) MapTable(*row.table, big_endian);
    // In registers: as far as the compiler knows, what is written might change the members.
    const uint8* const from = row.indices;
    const uint8* const to = table_indices_.data();
    for (int32 x = 0; x < count; ++x)
        indices[x] = to[from[x]];
}

void PixelMapper::MapTable(const SharedPixelTable& table, bool big_endian) {
    table_ = table;
    table_big_endian_ = big_endian;
    for (size_t i = 0; i < table_indices_.size(); ++i)
        table_indices_[i] = MapPixel(table->pixels[i], big_endian);
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

// Where rows are connected, two are done at a time, the lower one a little behind: neither waits
// for the other, which keeps the processor busy.
std::span<const uint8> PixelMapper::DiffuseRow(const Picture* picture, int32 y, int32 width,
                                               int32 inside) {
    if (y == next_y_) {
        next_y_ = -1;
        return next_row_.indices;
    }
    BeginRow(picture, y, width, inside, &row_);
    const bool big_endian = picture && IsBigEndian(picture->ColorSpace());
    if (chosen_big_endian_ != big_endian) OrderColors(big_endian);
    if (!unconnected_rows_ && inside > 0 && PixelsInside(picture, y + 1, width) == inside) {
        next_y_ = y + 1;
        BeginRow(picture, next_y_, width, inside, &next_row_);
        big_endian ? DiffuseTwo<true>(&row_, &next_row_, inside)
                   : DiffuseTwo<false>(&row_, &next_row_, inside);
    } else {
        big_endian ? DiffuseAlone<true>(&row_, width, inside)
                   : DiffuseAlone<false>(&row_, width, inside);
    }
    return row_.indices;
}

void PixelMapper::OrderColors(bool big_endian) {
    chosen_big_endian_ = big_endian;
    for (size_t i = 0; i < chosen_.size(); ++i) {
        const rgb_color color = colors_.table[i];
        chosen_[i] = big_endian ? Components{0, color.red, color.green, color.blue}
                                : Components{color.blue, color.green, color.red, 0};
    }
}

void PixelMapper::BeginRow(const Picture* picture, int32 y, int32 width, int32 inside,
                           DiffusedRow* row) {
    row->carried = Components{};
    row->indices.assign(static_cast<size_t>(width), transparent_index_);
    if (inside == 0) return;
    const PixelRow source = picture->Row(y);
    row->pixels = source.pixels;
    if (row->pixels) return;
    row->made.resize(static_cast<size_t>(inside) * 4);
    source.Expand(inside, row->made.data());
    row->pixels = row->made.data();
}

template <bool kBigEndian>
void PixelMapper::DiffuseAlone(DiffusedRow* row, int32 width, int32 inside) {
    for (int32 x = 0; x < inside; ++x) {
        // The last pixel's own error still goes into the rows, after the clearing.
        if (unconnected_rows_ && x == width - 1) diffusion_.ClearRow();
        DiffusePixel<kBigEndian>(row, x);
    }
    if (unconnected_rows_ && inside < width) diffusion_.ClearRow();
}

template <bool kBigEndian>
void PixelMapper::DiffuseTwo(DiffusedRow* upper, DiffusedRow* lower, int32 inside) {
    constexpr int32 kLag = ErrorDiffusion::kLag;
    for (int32 x = 0; x < std::min(kLag, inside); ++x)
        DiffusePixel<kBigEndian>(upper, x);
    for (int32 x = kLag; x < inside; ++x) {
        DiffusePixel<kBigEndian>(upper, x);
        DiffusePixel<kBigEndian>(lower, x - kLag);
    }
    for (int32 x = std::max(inside - kLag, 0); x < inside; ++x)
        DiffusePixel<kBigEndian>(lower, x);
}

// Corrected colors hardly ever repeat, so keeping them would cost more than it saves.
template <bool kBigEndian>
inline void PixelMapper::DiffusePixel(DiffusedRow* row, int32 x) {
    constexpr size_t kAlpha = kBigEndian ? 0 : 3;
    constexpr size_t kRed = kBigEndian ? 1 : 2;
    constexpr size_t kBlue = kBigEndian ? 3 : 0;
    const uint8* pixel = row->pixels + static_cast<size_t>(x) * 4;
    if (pixel[kAlpha] < 255) return;
    const Components corrected = ErrorDiffusion::Correct(ComponentsOf(pixel), row->carried);
    const uint8 index = nearest_.IndexOf(static_cast<uint8>(corrected[kRed]),
                                         static_cast<uint8>(corrected[kBigEndian ? 2 : 1]),
                                         static_cast<uint8>(corrected[kBlue]));
    diffusion_.Diffuse(x, chosen_[index], corrected, &row->carried);
    row->indices[static_cast<size_t>(x)] = index;
}

}  // namespace kirto
