#pragma once

#include <vector>

#include "picture/strip.h"

namespace kirto::test {

// What the strip tells of its pixels, in its order.
inline std::vector<PixelCount> CountsOf(const Strip& strip) {
    std::vector<PixelCount> counts;
    strip.AllCounts([&](const PixelCount& each) {
        counts.push_back(each);
        return true;
    });
    return counts;
}

}  // namespace kirto::test
