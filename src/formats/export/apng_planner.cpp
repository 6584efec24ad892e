#include "formats/export/apng_planner.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kirto {

namespace {

// What a delay holds in thousandths of a second.
constexpr int64 kLongestApngDelay = 65535;
constexpr size_t kAlpha = 3;

int64 PixelsIn(const PixelRect& rect) {
    return int64{rect.width} * rect.height;
}

}  // namespace

std::optional<ApngPlan> ApngPlanner::Add(SharedCanvas shown, int32 milliseconds) {
    if (controls_.empty()) return AddWhole(std::move(shown), milliseconds);
    Control& last = controls_.back();
    const bool both_last = last.milliseconds > 0 && milliseconds > 0;
    if (both_last && last.milliseconds + milliseconds <= kLongestApngDelay && *shown_ == *shown) {
        last.milliseconds += milliseconds;
        return std::nullopt;
    }
    if (areas_ == FrameAreas::kWhole) return AddWhole(std::move(shown), milliseconds);
    Way way = BestWay(*shown);
    last.dispose = way.dispose;
    ApngPlan plan{way.rect, shown, MayShowThrough(way, *shown) ? way.below : nullptr};
    controls_.push_back({way.rect, ApngPlan::Dispose::kNone, milliseconds});
    below_ = std::move(way.below);
    shown_ = std::move(shown);
    return plan;
}

ApngPlan ApngPlanner::AddWhole(SharedCanvas shown, int32 milliseconds) {
    const PixelRect whole{0, 0, width_, height_};
    controls_.push_back({whole, ApngPlan::Dispose::kNone, milliseconds});
    shown_ = std::move(shown);
    return {whole, shown_, nullptr};
}

ApngPlanner::Way ApngPlanner::BestWay(const CanvasPixels& shown) const {
    Way best = WayOver(ApngPlan::Dispose::kNone, shown_, shown);
    const auto offer = [&](ApngPlan::Dispose dispose, SharedCanvas below) {
        Way way = WayOver(dispose, std::move(below), shown);
        if (PixelsIn(way.rect) < PixelsIn(best.rect)) best = std::move(way);
    };
    offer(ApngPlan::Dispose::kBackground, Cleared());
    // Viewers clear the first frame where this is asked for.
    if (below_) offer(ApngPlan::Dispose::kPrevious, below_);
    return best;
}

ApngPlanner::Way ApngPlanner::WayOver(ApngPlan::Dispose dispose, SharedCanvas below,
                                      const CanvasPixels& shown) const {
    const PixelRect rect = Changed(*below, shown);
    return {dispose, std::move(below), rect};
}

// A pixel where nothing has changed.
PixelRect ApngPlanner::Changed(const CanvasPixels& below, const CanvasPixels& shown) const {
    int32 left = width_;
    int32 right = 0;
    int32 top = height_;
    int32 bottom = 0;
    const size_t row_bytes = At(width_, 0);
    for (int32 y = 0; y < height_; ++y) {
        const uint8* const a = below.data() + At(0, y);
        const uint8* const b = shown.data() + At(0, y);
        if (std::memcmp(a, b, row_bytes) == 0) continue;
        const auto first = std::mismatch(a, a + row_bytes, b).first - a;
        auto last = static_cast<ptrdiff_t>(row_bytes) - 1;
        while (a[last] == b[last])
            --last;
        left = std::min(left, static_cast<int32>(first / 4));
        right = std::max(right, static_cast<int32>(last / 4) + 1);
        top = std::min(top, y);
        bottom = y + 1;
    }
    return bottom == 0 ? PixelRect{0, 0, 1, 1} : PixelRect{left, top, right - left, bottom - top};
}

SharedCanvas ApngPlanner::Cleared() const {
    CanvasPixels pixels = *shown_;
    const PixelRect& rect = controls_.back().rect;
    for (int32 y = rect.top; y < rect.top + rect.height; ++y)
        std::memset(pixels.data() + At(rect.left, y), 0, At(rect.width, 0));
    return std::make_shared<const CanvasPixels>(std::move(pixels));
}

bool ApngPlanner::MayShowThrough(const Way& way, const CanvasPixels& shown) const {
    for (int32 y = way.rect.top; y < way.rect.top + way.rect.height; ++y) {
        for (int32 x = way.rect.left; x < way.rect.left + way.rect.width; ++x) {
            const uint8* const pixel = shown.data() + At(x, y);
            if (pixel[kAlpha] != 255 && std::memcmp(pixel, way.below->data() + At(x, y), 4) != 0)
                return false;
        }
    }
    return true;
}

}  // namespace kirto
