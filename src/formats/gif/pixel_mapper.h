#pragma once

#include <memory>
#include <vector>

#include "base/types.h"
#include "color/color_values.h"
#include "color/palette.h"
#include "formats/gif/error_diffusion.h"
#include "kit/bitmap.h"

namespace kirto {

// Reduces the rows of 32-bit pictures to palette indices, with a cache of the colors already looked
// up in a picture and, on request, error diffusion.
class PixelMapper {
  public:
    // transparent_index: what pixels with alpha below 255 become. dither: spread errors, in
    // pictures at most max_width pixels wide; without memory for the errors it is left out.
    PixelMapper(uint8 transparent_index, bool dither, int32 max_width);

    // Before each picture: the palette to map to, which outlives the picture. The grey ramp is
    // never dithered. unconnected_rows: rows do not follow their upper neighbor (interlaced order),
    // so no error passes from row to row.
    void StartPicture(const Palette& palette, bool unconnected_rows);

    // Maps row y of the bitmap, width pixels wide. Pixels outside the bitmap, and all pixels of a
    // bitmap that is null or not 32-bit, count as transparent.
    void MapRow(const BBitmap* bitmap, int32 y, int32 width, std::vector<uint8>* indices);

  private:
    uint8 MapPixel(rgb_color color, int32 x);
    uint8 CachedIndex(uint8 red, uint8 green, uint8 blue);

    const uint8 transparent_index_;
    const bool dither_;
    const Palette* palette_ = nullptr;
    bool diffusing_ = false;
    bool unconnected_rows_ = false;
    ColorValues cache_;  // of the current picture: index plus 1; 0 is not looked up yet
    ErrorDiffusion diffusion_;
};

// The picture's pixel as a color; black with alpha 0 outside the bitmap and in other color spaces
// than the 32-bit ones.
rgb_color PixelColor(const BBitmap* bitmap, int32 x, int32 y);

}  // namespace kirto
