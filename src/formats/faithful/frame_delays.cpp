#include "formats/faithful/frame_delays.h"

#include <algorithm>
#include <cmath>

namespace kirto {

namespace {

constexpr double kLongest = 65535;

double HundredthsOf(const Animation& animation, const Frame& frame, bool in_seconds) {
    const double pause = animation.PauseOf(frame);
    if (std::isnan(pause)) return 0;
    return std::clamp(in_seconds ? pause * 100 : pause, 0.0, kLongest);
}

}  // namespace

std::vector<uint16> SpreadDelays(const Animation& animation, bool in_seconds) {
    std::vector<uint16> delays;
    delays.reserve(static_cast<size_t>(animation.frames.Size()));
    // How much later than the last whole hundredth the frame is due, which is -0.5 to 0.5.
    double rest = 0;
    for (const FramePointer& frame : animation.frames) {
        const double due = HundredthsOf(animation, *frame, in_seconds) + rest;
        // What seconds are short of a hundredth by the way numbers are kept does not count.
        const double whole = std::clamp(std::floor(due + 0.5 + 1e-6), 0.0, kLongest);
        delays.push_back(static_cast<uint16>(whole));
        rest = std::clamp(due - whole, -0.5, 0.5);
    }
    return delays;
}

}  // namespace kirto
