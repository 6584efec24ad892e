#include "formats/export/video_timing.h"

#include <algorithm>
#include <numeric>

namespace kirto {

namespace {

constexpr int64 kShortestStep = 10;
constexpr int64 kLeastPause = 20;
constexpr int64 kPauseOfLess = 100;

int64 PauseOf(int32 milliseconds) {
    return milliseconds < kLeastPause ? kPauseOfLess : milliseconds;
}

}  // namespace

VideoTiming TimingOf(std::span<const int32> milliseconds) {
    VideoTiming timing;
    for (const int32 pause : milliseconds)
        timing.step = std::gcd(timing.step, PauseOf(pause));
    timing.step = std::max(timing.step, kShortestStep);
    int64 due = 0;
    for (const int32 pause : milliseconds) {
        due += PauseOf(pause);
        // To the nearest picture, from where the last frame ends.
        const int64 end = (2 * due + timing.step) / (2 * timing.step);
        const int64 repeats = std::max<int64>(end - timing.pictures, 1);
        timing.repeats.push_back(static_cast<int32>(repeats));
        timing.pictures += repeats;
    }
    return timing;
}

}  // namespace kirto
