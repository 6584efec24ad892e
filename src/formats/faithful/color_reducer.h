#pragma once

#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/adaptive_mapper.h"
#include "formats/faithful/screen.h"

namespace kirto {

// Finds colors for screens that show more of them than one image of a file can have. Constant; may
// be used by several threads.
class ColorReducer {
  public:
    // So many colors leave an index for transparent pixels.
    static constexpr int32 kMostColors = 255;

    // common: colors that all screens are given, at most kMostColors; empty: each has its own.
    // What was made when the work is stopped is of no use. The screen and the work outlive this.
    ColorReducer(const Screen& screen, AdaptiveDither dither, std::vector<rgb_color> common,
                 const Work& work);

    // The screen in at most kMostColors colors that suit the pixels that differ from those of
    // `before`, which is of the same size. Nothing stays nothing. Throws std::bad_alloc.
    ScreenPixels Reduce(const ScreenPixels& before, const ScreenPixels& shown) const;

  private:
    std::vector<rgb_color> ColorsFor(const ScreenPixels& before, const ScreenPixels& shown) const;

    const Screen& screen_;
    const AdaptiveDither dither_;
    const std::vector<rgb_color> common_;
    const Work& work_;
};

}  // namespace kirto
