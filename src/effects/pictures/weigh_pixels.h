// The sums that scaling consists of, over pixels of four numbers each. All of them give the same
// results, each with other instructions: the numbers are added up in the same order everywhere.
#pragma once

#include <vector>

#include "base/types.h"
#include "effects/pictures/filter_axis.h"

namespace kirto {

inline constexpr size_t kNumbersAPixel = 4;

struct PixelSums {
    // A row scaled by the axis: writes its target's pixels. Each is the sum of its even taps plus
    // that of its odd ones.
    void (*across)(const float* source, const FilterAxis& axis, float* target);
    // The sum of the rows, each as long as the target, times their weights. There is one at least.
    void (*rows)(const std::vector<const float*>& rows, const float* weights,
                 std::vector<float>& target);
};

// Without special instructions.
PixelSums PlainPixelSums();
#ifdef __x86_64__
// Only on processors with AVX2.
PixelSums Avx2PixelSums();
#endif

// The fastest of them on this processor.
const PixelSums& FastestPixelSums();

}  // namespace kirto
