#pragma once

#include <span>
#include <vector>

#include "base/types.h"

namespace kirto {

// The times of an animation at a constant rate.
struct VideoTiming {
    int64 step = 0;              // milliseconds that each picture is shown
    std::vector<int32> repeats;  // how many pictures each frame becomes; 1 or more
    int64 pictures = 0;          // all of them
};

// The fewest pictures that keep the pauses, at most 100 a second; where those do not do, each frame
// appears at most 5 milliseconds early or late. Pauses of less than 20 milliseconds last 100, as in
// browsers. milliseconds: of each frame, 0 to 1e8.
VideoTiming TimingOf(std::span<const int32> milliseconds);

}  // namespace kirto
