#pragma once

#include <optional>
#include <string_view>

#include "base/types.h"

namespace kirto {

// What is known of a video before its frames are read.
struct VideoProperties {
    int64 width = 0;  // pixels, as it is shown
    int64 height = 0;
    int64 rate_numerator = 0;  // frames a second, both above 0
    int64 rate_denominator = 1;
    double seconds = 0;  // 0: unknown
};

// Reads the JSON of ffprobe about the first video stream. Nothing where that is no video with a
// size between 1 and 65535.
std::optional<VideoProperties> ParseVideoProbe(std::string_view json);

}  // namespace kirto
