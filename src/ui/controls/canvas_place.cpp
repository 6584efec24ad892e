#include "ui/controls/canvas_place.h"

#include <algorithm>

#include "picture/picture.h"

namespace kirto {

namespace {

int NearEnough(double position) {
    constexpr double kFarthest = 1 << 20;
    return qRound(std::clamp(position, -kFarthest, kFarthest));
}

}  // namespace

QSize PaintedCanvasOf(const Animation& animation) {
    return QSize(animation.width, animation.height).expandedTo({1, 1}).boundedTo(kLargestCanvas);
}

QRect PlaceOnCanvas(const Frame& frame, double across, double down) {
    const int32 width = frame.bitmap ? frame.bitmap->Width() : frame.width;
    const int32 height = frame.bitmap ? frame.bitmap->Height() : frame.height;
    return {NearEnough(frame.x_offset * across), NearEnough(frame.y_offset * down),
            NearEnough(width * across), NearEnough(height * down)};
}

}  // namespace kirto
