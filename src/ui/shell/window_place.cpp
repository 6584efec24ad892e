#include "ui/shell/window_place.h"

#include <algorithm>
#include <cmath>

namespace kirto {

namespace {

constexpr QSize kComfortable(1100, 720);

// No screen reaches farther than this, in pixels.
int PixelAt(double coordinate) {
    constexpr double kFarthest = 1 << 20;
    return std::isfinite(coordinate) ? qRound(std::clamp(coordinate, -kFarthest, kFarthest)) : 0;
}

}  // namespace

QRect PixelsOf(const BRect& frame) {
    const QPoint corner(PixelAt(frame.left), PixelAt(frame.top));
    return {corner, QSize(PixelAt(frame.PixelWidth()), PixelAt(frame.PixelHeight()))};
}

QRect FirstPlace(const QSize& needed, const QRect& screen, const QMargins& decoration) {
    const QRect free = screen.marginsRemoved(decoration);
    QRect place(QPoint(), needed.expandedTo(kComfortable).boundedTo(free.size()));
    place.moveCenter(free.center());
    return place;
}

}  // namespace kirto
