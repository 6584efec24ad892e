#pragma once

#include <array>

#include "base/types.h"

namespace kirto {

// Thresholds for ordered dithering: a square of all ranks from 0 to kRanks - 1 that may be laid
// side by side, in which those below any threshold lie evenly but without a pattern. Made by the
// void-and-cluster method of R. Ulichney, "The void-and-cluster method for dither array
// generation", 1993. Constant; any thread may use it.
class BlueNoise {
  public:
    static constexpr int32 kSize = 32;
    static constexpr int32 kRanks = kSize * kSize;

    // The one square there is, made when it is first asked for.
    static const BlueNoise& Square();

    // The rank at a pixel. x and y: at least 0.
    int32 RankAt(int32 x, int32 y) const {
        return ranks_[static_cast<size_t>(y % kSize * kSize + x % kSize)];
    }

  private:
    BlueNoise();

    std::array<uint16, kRanks> ranks_{};
};

}  // namespace kirto
