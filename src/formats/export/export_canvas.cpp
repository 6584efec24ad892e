#include "formats/export/export_canvas.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "animation/pauses.h"

namespace kirto {

namespace {

constexpr double kLongestPause = 1e8;  // milliseconds

// From memory order to blue, green, red and alpha.
void TakePixel(const uint8* pixel, bool big_endian, uint8* target) {
    if (big_endian) {
        std::reverse_copy(pixel, pixel + 4, target);
    } else {
        std::memcpy(target, pixel, 4);
    }
    if (target[3] == 0) std::memset(target, 0, 4);
}

}  // namespace

CanvasPixels CanvasOf(const Animation& animation, const Frame& frame) {
    const auto width = static_cast<size_t>(animation.width);
    CanvasPixels pixels(width * static_cast<size_t>(animation.height) * 4);
    if (!frame.bitmap || !frame.bitmap->HasRows()) return pixels;
    const Picture& picture = *frame.bitmap;
    const bool big_endian = IsBigEndian(picture.ColorSpace());
    const int64 left = std::max<int64>(0, -int64{frame.x_offset});
    const int64 right = std::min(
        {int64{frame.width}, int64{picture.Width()}, int64{animation.width} - frame.x_offset});
    const int64 bottom = std::min(
        {int64{frame.height}, int64{picture.Height()}, int64{animation.height} - frame.y_offset});
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    for (int64 y = std::max<int64>(0, -int64{frame.y_offset}); y < bottom; ++y) {
        picture.ReadRow(static_cast<int32>(y), row.data());
        uint8* const target = pixels.data() + static_cast<size_t>(y + frame.y_offset) * width * 4;
        for (int64 x = left; x < right; ++x)
            TakePixel(row.data() + 4 * x, big_endian, target + 4 * (x + frame.x_offset));
    }
    return pixels;
}

std::vector<int32> SpreadMilliseconds(const Animation& animation, bool in_seconds) {
    const double unit = kMillisecondsPerSecond / PauseUnitsPerSecond(in_seconds);
    std::vector<int32> pauses;
    double rest = 0;  // how much later than the last whole millisecond the frame is due
    for (const FramePointer& frame : animation.frames) {
        const double pause = animation.PauseOf(*frame) * unit;
        const double due = std::isnan(pause) ? 0 : std::clamp(pause, 0.0, kLongestPause) + rest;
        // What seconds are short of a millisecond by the way numbers are kept does not count.
        const double whole = std::max(std::floor(due + 0.5 + 1e-6), 0.0);
        pauses.push_back(static_cast<int32>(whole));
        rest = std::clamp(due - whole, -0.5, 0.5);
    }
    return pauses;
}

int32 PlaysOf(const Animation& animation) {
    if (!animation.use_loop) return 1;
    if (animation.loop_count == 0) return 0;
    const int32 again = std::max(animation.loop_count, 0);
    return again < std::numeric_limits<int32>::max() ? again + 1 : again;
}

}  // namespace kirto
