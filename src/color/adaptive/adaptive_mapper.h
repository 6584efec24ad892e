#pragma once

#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "color/adaptive/alpha_matte.h"
#include "color/adaptive/nearest_entry.h"

namespace kirto {

// How a mapper makes up for colors that a palette lacks.
enum class AdaptiveDither {
    kNone,
    // R. W. Floyd and L. Steinberg, "An adaptive algorithm for spatial grey scale", 1976, from side
    // to side and with errors that fade.
    kErrorDiffusion,
    // Of the two entries about a color, the one that a fixed threshold at the pixel's place says:
    // the same pixel in the same place always becomes the same index, so what stands still in an
    // animation stays still.
    kOrdered,
};

// Reduces rows of pixels of 4 bytes to indices of a palette that AdaptivePalette made, or of any
// other. A color that is an entry becomes that entry, or the first of those that equal it, in
// pictures that have no other colors even with dithering. Used by one thread.
class AdaptiveMapper {
  public:
    struct Options {
        AdaptiveDither dither = AdaptiveDither::kNone;
        // How much of it, 0 to 100 percent: of the error that is diffused, or of the way between
        // two entries on which they are mixed. 0: as without dithering.
        int32 strength = 100;
        // What transparent pixels become, and nothing else; none: all are laid on the matte.
        int32 transparent_index = NearestEntry::kNone;
        rgb_color matte{255, 255, 255, 255};
    };

    // colors: 1 to 256. width: pixels of a row, 0 or more. space: a 32-bit one, of the pixels;
    // their alpha counts in all of them.
    AdaptiveMapper(std::span<const rgb_color> colors, int32 width, color_space space,
                   const Options& options);

    // False when memory is short, so that errors are not diffused. The rest works all the same.
    bool HasMemory() const { return Dither() != AdaptiveDither::kErrorDiffusion || errors_; }
    // Maps a row to as many indices. y: 0 or more; where errors are diffused, a row that is not the
    // one below the last begins a new picture. Otherwise rows come in any order.
    void MapRow(int32 y, const uint8* pixels, uint8* indices);

  private:
    // Two entries, of which places above the threshold get the second.
    struct Pair {
        uint8 first = 0;
        uint8 second = 0;
        int32 threshold = 0;  // in ranks; places of lower ranks get the second
    };

    AdaptiveDither Dither() const {
        return options_.strength > 0 ? options_.dither : AdaptiveDither::kNone;
    }
    uint32 KeyAt(const uint8* pixel) const;
    uint8 TransparentIndex() const { return static_cast<uint8>(options_.transparent_index); }
    void MapNearest(const uint8* pixels, uint8* indices);
    void MapOrdered(int32 y, const uint8* pixels, uint8* indices);
    Pair PairFor(const ColorComponents& color);
    void StartErrors(int32 y);
    void Diffuse(int32 y, const uint8* pixels, uint8* indices);
    // Spreads what is left of an error of the pixel at that column.
    void Spread(ColorComponents error, size_t column, bool leftward);

    const Options options_;
    const AlphaMatte matte_;
    const size_t width_;
    const bool big_endian_;
    NearestEntry nearest_;
    // Errors in sixteenths of a level, of this row and the next, with a column more on each side.
    AllocatedArray<ColorComponents> errors_;
    ColorComponents* this_row_ = nullptr;
    ColorComponents* next_row_ = nullptr;
    int32 next_y_ = 0;
};

}  // namespace kirto
