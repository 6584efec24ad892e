// The sums that scaling consists of, over pixels of four numbers each. Pure functions; the numbers
// of a pixel are added up in the order of its taps, so that the results are the same on every
// processor.
#pragma once

#include <vector>

#include "base/types.h"
#include "effects/pictures/filter_axis.h"

namespace kirto {

inline constexpr size_t kNumbersAPixel = 4;

// A row scaled by the axis: writes its target's pixels.
void WeighAcross(const float* source, const FilterAxis& axis, float* target);

// The sum of the rows, each as long as the target, times their weights. There is one at least.
void WeighRows(const std::vector<const float*>& rows, const float* weights,
               std::vector<float>& target);

}  // namespace kirto
