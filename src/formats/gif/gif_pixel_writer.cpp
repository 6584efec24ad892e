#include "formats/gif/gif_pixel_writer.h"

#include <algorithm>
#include <cstring>

namespace kirto {

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
    const int32 visible = std::min(count, bitmap_.Width() - x);
    uint8* target = bitmap_.Row(y) + static_cast<size_t>(x) * 4;
    for (int32 i = 0; i < visible; ++i) {
        if (indices[i] != colors_.skipped_index) {
            std::memcpy(target + static_cast<size_t>(i) * 4, &colors_.pixels[indices[i]], 4);
        }
    }
}

}  // namespace kirto
