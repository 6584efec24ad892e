#include "formats/export/png_pixels.h"

#include <algorithm>

#include "base/byte_order.h"

namespace kirto {

namespace {

constexpr uint32 kOpaque = 255;
constexpr uint8 kTrueColor = 2;
constexpr uint8 kIndexed = 3;
constexpr uint8 kTrueColorWithAlpha = 6;

}  // namespace

void PngPixels::Count(std::span<const uint8> canvas) {
    uint32 last = 0;
    bool known = false;
    for (size_t i = 0; i < canvas.size(); i += 4) {
        const uint32 pixel = ReadLittle32(&canvas[i]);
        if (known && pixel == last) continue;
        known = true;
        last = pixel;
        alpha_ = alpha_ || pixel >> 24 != kOpaque;
        if (!few_ || !index_of_.try_emplace(pixel, uint8{0}).second) continue;
        colors_.push_back(pixel);
        few_ = colors_.size() <= kMostColors;
    }
}

// Colors with alpha come first: opaque ones at the end need no entry in tRNS.
void PngPixels::Settle(bool skips) {
    if (!few_) {
        index_of_.clear();
        return;
    }
    if (skips && colors_.size() < kMostColors && index_of_.try_emplace(0, uint8{0}).second)
        colors_.push_back(0);
    std::sort(colors_.begin(), colors_.end());
    for (size_t i = 0; i < colors_.size(); ++i)
        index_of_[colors_[i]] = static_cast<uint8>(i);
    for (depth_ = 1; (size_t{1} << depth_) < colors_.size(); depth_ *= 2) {
    }
}

uint8 PngPixels::ColorType() const {
    if (few_) return kIndexed;
    return alpha_ ? kTrueColorWithAlpha : kTrueColor;
}

size_t PngPixels::PixelBytes() const {
    if (few_) return 1;
    return alpha_ ? 4 : 3;
}

size_t PngPixels::RowBytes(int32 width) const {
    const size_t pixels = static_cast<size_t>(width);
    return few_ ? (pixels * static_cast<size_t>(depth_) + 7) / 8 : pixels * PixelBytes();
}

std::vector<uint8> PngPixels::Palette() const {
    std::vector<uint8> content;
    for (size_t i = 0; few_ && i < colors_.size(); ++i) {
        for (const int shift : {16, 8, 0})
            content.push_back(static_cast<uint8>(colors_[i] >> shift));
    }
    return content;
}

std::vector<uint8> PngPixels::PaletteAlpha() const {
    std::vector<uint8> content;
    for (size_t i = 0; few_ && i < colors_.size() && colors_[i] >> 24 != kOpaque; ++i)
        content.push_back(static_cast<uint8>(colors_[i] >> 24));
    return content;
}

void PngPixels::Put(uint32 pixel, size_t x, uint8* row) const {
    if (!few_) {
        uint8* const target = row + x * PixelBytes();
        for (size_t i = 0; i < 3; ++i)
            target[i] = static_cast<uint8>(pixel >> (16 - 8 * i));
        if (alpha_) target[3] = static_cast<uint8>(pixel >> 24);
        return;
    }
    const size_t bit = x * static_cast<size_t>(depth_);
    const size_t shift = 8 - static_cast<size_t>(depth_) - bit % 8;
    row[bit / 8] = static_cast<uint8>(row[bit / 8] | index_of_.at(pixel) << shift);
}

std::vector<uint8> PngPixels::Rows(std::span<const uint8> canvas, int32 width,
                                   const PixelRect& rect, const CanvasPixels* below) const {
    const size_t row_bytes = RowBytes(rect.width);
    std::vector<uint8> rows(row_bytes * static_cast<size_t>(rect.height));
    for (int32 y = 0; y < rect.height; ++y) {
        uint8* const row = rows.data() + row_bytes * static_cast<size_t>(y);
        const size_t start = 4 * (static_cast<size_t>(rect.top + y) * static_cast<size_t>(width) +
                                  static_cast<size_t>(rect.left));
        for (size_t x = 0; x < static_cast<size_t>(rect.width); ++x) {
            const uint32 pixel = ReadLittle32(&canvas[start + 4 * x]);
            const bool stays = below && ReadLittle32(&(*below)[start + 4 * x]) == pixel;
            Put(stays ? 0 : pixel, x, row);
        }
    }
    return rows;
}

}  // namespace kirto
