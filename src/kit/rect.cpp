#include "kit/rect.h"

#include <cmath>

namespace {

int32 PixelsBetween(float first, float last) {
    // Float edges are exact up to 2^24 only, so the distance is formed in double precision.
    const double pixels = std::ceil(static_cast<double>(last) - static_cast<double>(first)) + 1;
    if (!(pixels >= 0 && pixels <= 2147483647.0)) return 0;
    return static_cast<int32>(pixels);
}

}  // namespace

int32 BRect::PixelWidth() const {
    return PixelsBetween(left, right);
}

int32 BRect::PixelHeight() const {
    return PixelsBetween(top, bottom);
}

void BRect::OffsetBy(float dx, float dy) {
    left += dx;
    right += dx;
    top += dy;
    bottom += dy;
}

BRect BRect::OfSize(int32 width, int32 height) {
    const auto last = [](int32 size) { return static_cast<float>(int64{size} - 1); };
    return {0, 0, last(width), last(height)};
}
