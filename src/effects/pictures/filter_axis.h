#pragma once

#include <vector>

#include "base/types.h"

namespace kirto {

enum class ScaleFilter {
    kNearest,   // the pixel in whose place it lies; no new colors
    kBilinear,  // a triangle as wide as what a pixel covers
    kLanczos,   // sinc(x) sinc(x / 3) up to the third zero
};

// Where the pixels of a scaled row come from, in the pixels of the row it is made of: the middle of
// pixel i is at start + (i + 0.5) * step. step: above 0.
struct AxisPlan {
    double start = 0;
    double step = 1;
    int32 source = 0;  // pixels of the row, 1 or more
    int32 target = 0;  // pixels of the scaled one, 1 or more

    bool operator==(const AxisPlan&) const = default;
};

// The weights of the pixels that each pixel of a scaled row is made of, for any filter but the
// nearest. Along either axis; a row stands for a column as well.
//
// The filter is spread by the step where that is above 1, so that each source pixel counts. Of
// pixels beyond the row's ends nothing is known: they have no weight, and the others add up to 1. A
// middle beyond an end counts as that end.
class FilterAxis {
  public:
    // Throws std::bad_alloc.
    FilterAxis(const AxisPlan& plan, ScaleFilter filter);

    int32 Target() const { return static_cast<int32>(first_.size()); }
    // Weights a pixel; those from its end on are 0.
    int32 Taps() const { return taps_; }
    // The first source pixel of pixel i: ascending with i.
    int32 First(int32 i) const { return first_[static_cast<size_t>(i)]; }
    // Past the last source pixel of pixel i that has a weight.
    int32 End(int32 i) const { return end_[static_cast<size_t>(i)]; }
    const float* Weights(int32 i) const {
        return &weights_[static_cast<size_t>(i) * static_cast<size_t>(taps_)];
    }

  private:
    void SetWeights(int32 i, double middle, double spread, ScaleFilter filter);

    int32 taps_ = 0;
    std::vector<int32> first_;
    std::vector<int32> end_;
    std::vector<float> weights_;
};

// The source pixel in whose place pixel i lies: the one that its middle falls into, the nearest
// where it falls beside the row.
int32 NearestSource(const AxisPlan& plan, int32 i);

}  // namespace kirto
