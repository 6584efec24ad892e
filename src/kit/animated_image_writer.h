// Making image files that move.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "base/types.h"
#include "kit/animated_image.h"

namespace kirto {

// How much of the pictures a file keeps.
struct AnimatedImageQuality {
    std::optional<int32> lossy;  // 0 to 100, the best; nothing: every pixel stays what it is
    // Asked every now and then, on the thread that writes, whether to give up; empty: never.
    std::function<bool()> stopped;
};

// Writes the frames of an animated image, one after the other. Used by one thread at a time.
class AnimatedImageWriter {
  public:
    virtual ~AnimatedImageWriter() = default;

    // canvas: blue, green, red and alpha of each pixel, the colors not multiplied by alpha, row by
    // row. False when it was stopped, memory is short or the format has no room for it; nothing may
    // follow then.
    virtual bool Add(std::span<const uint8> canvas, int32 milliseconds) = 0;
    // The whole file, called once, last; empty when it can't be made.
    virtual std::vector<uint8> Finish() = 0;
};

}  // namespace kirto
