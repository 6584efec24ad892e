#pragma once

#include <memory>
#include <vector>

#include "base/types.h"
#include "color/nearest_color.h"
#include "color/palette.h"
#include "formats/gif/error_diffusion.h"
#include "formats/gif/index_memo.h"
#include "kit/bitmap.h"

namespace kirto {

// Reduces the rows of 32-bit pictures to palette indices, with a memo of colors already looked up
// in a picture and, on request, error diffusion.
class PixelMapper {
  public:
    // transparent_index: what pixels with alpha below 255 become. dither: spread errors, in
    // pictures at most max_width pixels wide; without memory for the errors it is left out.
    PixelMapper(uint8 transparent_index, bool dither, int32 max_width);

    // False when memory was short, so that dithering is left out or colors are looked up again.
    bool HasMemory() const { return memo_.Ready() && (!dither_ || diffusion_.Ready()); }

    // Before each picture: the palette to map to, which outlives the picture. The grey ramp is
    // never dithered. unconnected_rows: rows do not follow their upper neighbor (interlaced order),
    // so no error passes from row to row.
    void StartPicture(const Palette& palette, bool unconnected_rows);

    // Maps row y of the bitmap, width pixels wide. Pixels outside the bitmap, and all pixels of a
    // bitmap that is null or not 32-bit, count as transparent.
    void MapRow(const BBitmap* bitmap, int32 y, int32 width, std::vector<uint8>* indices);

  private:
    // The row's pixels that lie in the bitmap.
    template <bool kBigEndian>
    void MapPixels(const uint8* row, int32 count, uint8* indices);
    template <bool kBigEndian>
    void DiffusePixels(const uint8* row, int32 width, int32 count, uint8* indices);
    uint8 MapColor(rgb_color color);

    const uint8 transparent_index_;
    const bool dither_;
    const Palette* palette_ = nullptr;
    bool diffusing_ = false;
    bool unconnected_rows_ = false;
    NearestColor nearest_;  // in the current picture's palette
    IndexMemo memo_;        // of the current picture
    ErrorDiffusion diffusion_;
};

// The picture's pixel as a color; black with alpha 0 outside the bitmap and in other color spaces
// than the 32-bit ones.
rgb_color PixelColor(const BBitmap* bitmap, int32 x, int32 y);

}  // namespace kirto
