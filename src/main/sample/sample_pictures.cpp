#include "main/sample/sample_pictures.h"

#include <algorithm>
#include <cmath>

namespace kirto {

namespace {

constexpr int32 kWidth = 160;
constexpr int32 kHeight = 120;
constexpr int32 kFloor = 108;
constexpr double kPi = 3.14159265358979323846;

uint8 Level(double value) {
    return static_cast<uint8>(std::clamp(value, 0.0, 255.0));
}

template <typename ColorAt>
SamplePicture Draw(int32 width, int32 height, ColorAt color_at) {
    SamplePicture picture{width, height, {}};
    for (int32 y = 0; y < height; ++y) {
        for (int32 x = 0; x < width; ++x) {
            const rgb_color color = color_at(x, y);
            picture.rgba.insert(picture.rgba.end(),
                                {color.red, color.green, color.blue, color.alpha});
        }
    }
    return picture;
}

// warmth: 0 for a blue sky, 1 for a red one.
rgb_color SkyAt(int32 y, double warmth) {
    if (y >= kFloor) return {70, 60, 90, 255};
    const int32 band = y / 9;
    const double shade = 9.0 * band;
    return {Level(40 + shade * (0.4 + 0.6 * warmth) + 40 * warmth), Level(50 + shade / 2),
            Level(190 - 70 * warmth), 255};
}

rgb_color BallAt(int32 x, int32 y, int32 step) {
    const double phase = 2 * kPi * step / kBallSteps;
    const double dx = (x - kWidth / 2.0 - kWidth * 0.32 * std::sin(phase)) / 20;
    const double dy = (y - 88 + 62 * std::fabs(std::cos(phase))) / 20;
    const double depth = 1 - dx * dx - dy * dy;
    if (depth <= 0) return SkyAt(y, 1);
    const double light = std::max(0.15, -0.5 * dx - 0.6 * dy + 0.62 * std::sqrt(depth));
    return {Level(40 + 230 * light), Level(150 * light), Level(60 * light), 255};
}

// turn: 0 to 1 for one spoke.
rgb_color WheelAt(int32 x, int32 y, double turn) {
    constexpr int32 kSpokes = 6;
    const double dx = x - kWidth / 2.0;
    const double dy = y - kHeight / 2.0;
    const double radius = std::sqrt(dx * dx + dy * dy);
    const double spoke = std::atan2(dy, dx) / (2 * kPi) * kSpokes - turn;
    if (radius > 52) return {24, 28, 44, 255};
    if (radius > 44 || radius < 9) return {230, 190, 80, 255};
    return spoke - std::floor(spoke) < 0.35 ? rgb_color{200, 90, 50, 255}
                                            : rgb_color{40, 48, 72, 255};
}

}  // namespace

SamplePicture DrawBall(int32 step) {
    return Draw(kWidth, kHeight, [=](int32 x, int32 y) { return BallAt(x, y, step); });
}

SamplePicture DrawSky(int32 hour) {
    return Draw(kWidth, kHeight, [=](int32, int32 y) { return SkyAt(y, 1 - hour); });
}

SamplePicture DrawSheet() {
    constexpr double kTiles = kSheetRows * kSheetColumns;
    return Draw(kWidth * kSheetColumns, kHeight * kSheetRows, [=](int32 x, int32 y) {
        const int32 tile = y / kHeight * kSheetColumns + x / kWidth;
        return WheelAt(x % kWidth, y % kHeight, tile / kTiles);
    });
}

}  // namespace kirto
