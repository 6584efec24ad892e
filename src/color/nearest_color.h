#pragma once

#include "base/types.h"
#include "color/builtin_palettes.h"
#include "color/nearest_color_kernels.h"

namespace kirto {

// Finds the entry of a color table that is nearest to a color, for many colors. Used by one thread.
class NearestColor {
  public:
    // Takes over the entries below size, 0 to 256; other sizes count as the nearest of these.
    void SetTable(const ColorTable& table, int32 size) { columns_.Set(table, size); }

    // The entry nearest to the color by the sum of absolute differences, the lowest index among
    // equals; 0 without entries.
    uint8 IndexOf(uint8 red, uint8 green, uint8 blue) const {
        return search_(columns_, red, green, blue);
    }

  private:
    ColorColumns columns_{};
    NearestColorSearch search_ = FastestNearestColorSearch();
};

}  // namespace kirto
