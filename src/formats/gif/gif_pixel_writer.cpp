#include "formats/gif/gif_pixel_writer.h"

#include <algorithm>
#include <cstring>

#include "base/byte_order.h"

namespace kirto {

namespace {

// Indices that are looked at together.
constexpr size_t kGroup = 8;

uint64 GroupAt(const uint8* indices) {
    uint64 group = 0;
    std::memcpy(&group, indices, sizeof(group));
    return group;
}

uint64 GroupOf(uint8 index) {
    return index * uint64{0x0101010101010101};
}

// Whether any of the group's indices is that one.
bool Contains(uint64 group, uint8 index) {
    // Where the index is, the difference is a zero byte, and only from a zero byte does taking 1
    // set a highest bit that was clear; or behind one, where the 1 is lent on.
    const uint64 difference = group ^ GroupOf(index);
    return ((difference - GroupOf(0x01)) & ~difference & GroupOf(0x80)) != 0;
}

void PutPixel(uint32 pixel, uint8* target) {
    std::memcpy(target, &pixel, sizeof(pixel));
}

void PutGroup(const uint8* indices, const uint32* pixels, uint8* target) {
    const std::array<uint32, kGroup> group = {
        pixels[indices[0]], pixels[indices[1]], pixels[indices[2]], pixels[indices[3]],
        pixels[indices[4]], pixels[indices[5]], pixels[indices[6]], pixels[indices[7]]};
    std::memcpy(target, group.data(), sizeof(group));
}

// Puts the pixels of so many indices into a row.
void PutPixels(const uint8* indices, size_t count, const uint32* pixels, uint8* target) {
    size_t i = 0;
    for (; i + kGroup <= count; i += kGroup)
        PutGroup(indices + i, pixels, target + i * 4);
    for (; i < count; ++i)
        PutPixel(pixels[indices[i]], target + i * 4);
}

// The same, but leaves the pixels of one index as they are.
void PutPixelsExcept(uint8 skipped, const uint8* indices, size_t count, const uint32* pixels,
                     uint8* target) {
    size_t i = 0;
    while (i < count) {
        const bool whole = count - i >= kGroup;
        const size_t step = whole ? kGroup : count - i;
        if (whole && !Contains(GroupAt(indices + i), skipped)) {
            PutGroup(indices + i, pixels, target + i * 4);
        } else if (!whole || GroupAt(indices + i) != GroupOf(skipped)) {
            for (size_t k = i; k < i + step; ++k)
                if (indices[k] != skipped) PutPixel(pixels[indices[k]], target + k * 4);
        }
        i += step;
    }
}

}  // namespace

uint32 PixelOf(rgb_color color) {
    const uint8 bytes[4] = {color.blue, color.green, color.red, color.alpha};
    uint32 pixel = 0;
    std::memcpy(&pixel, bytes, sizeof(pixel));
    return pixel;
}

GifPixelColors PixelColorsOf(const Palette& palette) {
    GifPixelColors colors;
    std::transform(palette.colors.begin(), palette.colors.end(), colors.pixels.begin(), PixelOf);
    return colors;
}

GifPixelWriter::GifPixelWriter(BBitmap& bitmap, GifImageArea area, bool interlaced,
                               const GifPixelColors& colors)
    : bitmap_(bitmap),
      area_(area),
      colors_(colors),
      // An image without columns takes no pixels, however many its data delivers.
      rows_(area.width > 0 ? area.height : 0, interlaced) {}

void GifPixelWriter::Write(const uint8* indices, size_t count) {
    while (count > 0 && !rows_.Done()) {
        const size_t row_left = static_cast<size_t>(area_.width - column_);
        const int32 run = static_cast<int32>(std::min(count, row_left));
        WriteRun(indices, run);
        indices += run;
        count -= static_cast<size_t>(run);
        column_ += run;
        if (column_ == area_.width) {
            column_ = 0;
            rows_.Next();
        }
    }
}

// Writes indices that all belong to the current row, from the current column on.
void GifPixelWriter::WriteRun(const uint8* indices, int32 count) {
    const int32 x = area_.left + column_;
    const int32 y = area_.top + rows_.Row();
    if (x >= bitmap_.Width() || y >= bitmap_.Height()) return;
    const size_t visible = static_cast<size_t>(std::min(count, bitmap_.Width() - x));
    uint8* target = bitmap_.Row(y) + static_cast<size_t>(x) * 4;
    if (colors_.skipped_index < 0) {
        PutPixels(indices, visible, colors_.pixels.data(), target);
    } else {
        PutPixelsExcept(LowByte(colors_.skipped_index), indices, visible, colors_.pixels.data(),
                        target);
    }
}

}  // namespace kirto
