#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "base/types.h"
#include "color/nearest_color.h"
#include "color/palette.h"
#include "formats/gif/error_diffusion.h"
#include "formats/gif/index_memo.h"
#include "picture/picture.h"

namespace kirto {

// Reduces the rows of pictures to palette indices, with a memo of colors already looked up and, on
// request, error diffusion.
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

    // Maps row y of the picture, width pixels wide; connected rows are asked for from the top down.
    // Pixels outside the picture, and all pixels of one that is null or without rows, count as
    // transparent. The indices are good until the next call.
    std::span<const uint8> MapRow(const Picture* picture, int32 y, int32 width);

  private:
    // A row that errors are diffused in: its pixels that lie in the picture, and what they become.
    struct DiffusedRow {
        std::vector<uint8> made;  // the pixels, where they have to be made
        const uint8* pixels = nullptr;
        std::vector<uint8> indices;
        ErrorDiffusion::Carried carried{};
    };

    // What a color becomes depends on.
    struct Colors {
        int32 mode = 0;
        int32 size = -1;
        ColorTable table{};

        bool operator==(const Colors&) const = default;
    };

    void SetColors(const Colors& colors);
    void MapIndices(const PixelRow& row, bool big_endian, int32 count, uint8* indices);
    void MapTable(const SharedPixelTable& table, bool big_endian);
    uint8 MapPixel(uint32 pixel, bool big_endian);
    template <bool kBigEndian>
    void MapPixels(const uint8* row, int32 count, uint8* indices);
    uint8 MapColor(rgb_color color);
    std::span<const uint8> DiffuseRow(const Picture* picture, int32 y, int32 width, int32 inside);
    void OrderColors(bool big_endian);
    void BeginRow(const Picture* picture, int32 y, int32 width, int32 inside, DiffusedRow* row);
    template <bool kBigEndian>
    void DiffuseAlone(DiffusedRow* row, int32 width, int32 inside);
    template <bool kBigEndian>
    void DiffuseTwo(DiffusedRow* upper, DiffusedRow* lower, int32 inside);
    template <bool kBigEndian>
    void DiffusePixel(DiffusedRow* row, int32 x);

    const uint8 transparent_index_;
    const bool dither_;
    const Palette* palette_ = nullptr;
    bool diffusing_ = false;
    bool unconnected_rows_ = false;
    Colors colors_;         // of the current palette
    NearestColor nearest_;  // among them
    IndexMemo memo_;        // of what they were asked for
    std::vector<uint8> indices_;
    // What the entries of the last row's table become.
    SharedPixelTable table_;
    bool table_big_endian_ = false;
    std::array<uint8, 256> table_indices_;

    ErrorDiffusion diffusion_;
    // The palette's colors, in the order of a pixel's bytes.
    std::array<ErrorDiffusion::Components, 256> chosen_;
    std::optional<bool> chosen_big_endian_;  // their order; none yet: nothing
    DiffusedRow row_;
    DiffusedRow next_row_;
    int32 next_y_ = -1;  // next_row_ is that row of the picture, done already; -1: none is
};

// Row y of the picture as colors, width of them; black with alpha 0 outside the picture and where
// it has no rows.
void ReadColors(const Picture* picture, int32 y, int32 width, std::vector<rgb_color>* colors);

}  // namespace kirto
