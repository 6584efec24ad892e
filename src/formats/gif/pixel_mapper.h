#pragma once

#include <array>
#include <memory>
#include <vector>

#include "base/types.h"
#include "color/nearest_color.h"
#include "color/palette.h"
#include "formats/gif/error_diffusion.h"
#include "formats/gif/index_memo.h"
#include "picture/picture.h"

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

    // Maps row y of the picture, width pixels wide. Pixels outside the picture, and all pixels of
    // one that is null or without rows, count as transparent.
    void MapRow(const Picture* picture, int32 y, int32 width, std::vector<uint8>* indices);

  private:
    void MapIndices(const PixelRow& row, bool big_endian, int32 count, uint8* indices);
    uint8 MapPixel(uint32 pixel, bool big_endian);
    // The row's pixels that lie in the picture.
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
    std::vector<uint8> row_;  // the current row's pixels where they have to be made

    // What the entries of the last row's table become; kUnknown where no pixel asked yet.
    static constexpr uint16 kUnknown = 0xFFFF;
    SharedPixelTable table_;
    bool table_big_endian_ = false;
    std::array<uint16, 256> table_indices_;
};

// Row y of the picture as colors, width of them; black with alpha 0 outside the picture and where
// it has no rows.
void ReadColors(const Picture* picture, int32 y, int32 width, std::vector<rgb_color>* colors);

}  // namespace kirto
