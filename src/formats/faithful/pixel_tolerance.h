// How far the pixels of a file may be from what they are to be.
#pragma once

#include "base/types.h"
#include "color/adaptive/color_metric.h"

namespace kirto {

// The sum of the squares of the differences in red, green and blue.
inline int64 SquareDistance(uint32 key, uint32 other) {
    const ColorComponents a = ComponentsOf(key);
    const ColorComponents b = ComponentsOf(other);
    int64 sum = 0;
    for (size_t i = 0; i < a.size(); ++i)
        sum += int64{a[i] - b[i]} * (a[i] - b[i]);
    return sum;
}

// The largest square distance that a loss of 0 to 200 allows: between a pixel and what stays there,
// and once more between that and what is drawn.
inline int64 ToleranceOf(int32 loss) {
    return int64{5} * loss;
}

// The largest square distance of both together: twice as far.
inline int64 FarthestOf(int32 loss) {
    return 4 * ToleranceOf(loss);
}

}  // namespace kirto
