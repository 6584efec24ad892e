#pragma once

#include <array>

#include "base/types.h"
#include "color/palette.h"
#include "formats/gif/gif_row_order.h"
#include "kit/bitmap.h"

namespace kirto {

// Where an image's pixels go in a bitmap: its rectangle, in pixels of the bitmap. The rectangle may
// reach past the bitmap; what lies outside is dropped.
struct GifImageArea {
    int32 left = 0;
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
};

// What the palette indices of an image become, as pixels in memory order blue, green, red, alpha.
struct GifPixelColors {
    std::array<uint32, 256> pixels{};
    int32 skipped_index = -1;  // pixels of this index are left as they are; -1: none
};

// The palette's colors as pixels.
GifPixelColors PixelColorsOf(const Palette& palette);

// One color as a pixel.
uint32 PixelOf(rgb_color color);

// Puts a stream of palette indices into a bitmap, row after row in the image's row order. Indices
// past the last row are dropped.
class GifPixelWriter {
  public:
    // The bitmap is 32-bit with bits, and outlives the writer.
    GifPixelWriter(BBitmap& bitmap, GifImageArea area, bool interlaced,
                   const GifPixelColors& colors);

    void Write(const uint8* indices, size_t count);
    // True once every row is written: whatever comes is dropped.
    bool Full() const { return rows_.Done(); }

  private:
    void WriteRun(const uint8* indices, int32 count);

    BBitmap& bitmap_;
    const GifImageArea area_;
    const GifPixelColors& colors_;
    GifRowOrder rows_;
    int32 column_ = 0;  // within the area
};

}  // namespace kirto
