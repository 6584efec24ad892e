#pragma once

#include <span>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/adaptive_mapper.h"
#include "color/color_values.h"
#include "formats/faithful/screen.h"

namespace kirto {

// Finds colors for screens that show more of them than one image of a file can have. Constant; may
// be used by several threads.
class ColorReducer {
  public:
    // So many colors leave an index for transparent pixels.
    static constexpr int32 kMostColors = 255;

    struct Options {
        AdaptiveDither dither = AdaptiveDither::kErrorDiffusion;
        int32 dither_strength = 100;  // percent
        int32 most_colors = 256;      // of a screen, 2 to 256
        // Colors that all screens are given, at most kMostColors; empty: each has its own.
        std::vector<rgb_color> common{};
        bool always_common = false;  // also those that have few colors
        // Different colors that pixels keep, at most kMostColors.
        std::vector<rgb_color> exact{};
    };

    // What was made when the work is stopped is of no use. The screen and the work outlive this.
    ColorReducer(const Screen& screen, Options options, const Work& work);

    // Screens that draw no more colors than these are not to be reduced.
    size_t MostExact() const {
        const bool never = options_.always_common && !options_.common.empty();
        return never ? 0 : static_cast<size_t>(options_.most_colors);
    }

    // Those of the colors that are among the counted ones.
    static std::vector<rgb_color> Occurring(std::span<const rgb_color> colors,
                                            std::span<const ColorValues::Item> counts);

    // The screen in so many colors, at most kMostColors, that suit the pixels that differ from
    // those of `before`, which is of the same size. Nothing stays nothing. Throws std::bad_alloc.
    ScreenPixels Reduce(const ScreenPixels& before, const ScreenPixels& shown) const;

  private:
    std::vector<rgb_color> ColorsFor(const ScreenPixels& before, const ScreenPixels& shown) const;

    const Screen& screen_;
    const Options options_;
    const Work& work_;
};

}  // namespace kirto
