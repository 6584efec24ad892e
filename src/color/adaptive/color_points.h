#pragma once

#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/color_metric.h"
#include "color/color_values.h"

namespace kirto {

// What a palette is made for: a color, or the mean of a few that hardly differ, and its pixels.
struct ColorPoint {
    // A component is given in so many steps a level.
    static constexpr int32 kSteps = 16;

    ColorComponents color{};
    uint64 pixels = 0;
};

// Colors as points, in an order that does not depend on theirs. Up to 32,768 of them are a point
// each; of more, those that agree in the upper 6 bits of each component share one, so that there
// are never more than 262,144. Constant after construction.
class ColorPoints {
  public:
    // colors: each once. Empty where memory is short or the work, if any, is stopped.
    explicit ColorPoints(std::span<const ColorValues::Item> colors, const Work* work = nullptr);

    std::span<const ColorPoint> All() const { return {points_.get(), count_}; }

  private:
    void TakeEach(std::span<const ColorValues::Item> colors);
    void TakeMeans(std::span<const ColorValues::Item> colors, const Work* work);

    AllocatedArray<ColorPoint> points_;
    size_t count_ = 0;
};

}  // namespace kirto
