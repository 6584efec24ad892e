// The pictures that the sample program draws.
#pragma once

#include <vector>

#include "base/types.h"

namespace kirto {

// Rows of 4-byte pixels in the order red, green, blue, alpha.
struct SamplePicture {
    int32 width = 0;
    int32 height = 0;
    std::vector<uint8> rgba;
};

inline constexpr int32 kBallSteps = 24;
inline constexpr int32 kSheetRows = 3;
inline constexpr int32 kSheetColumns = 4;

// A shaded ball that bounces once a turn over a floor under an evening sky, 160 x 120.
SamplePicture DrawBall(int32 step);

// The ball's sky at dawn (0) or at noon (1), without the ball, 160 x 120.
SamplePicture DrawSky(int32 hour);

// A sheet of kSheetRows x kSheetColumns tiles of 160 x 120: a wheel that turns by one spoke.
SamplePicture DrawSheet();

}  // namespace kirto
