#include "ui/timeline/timeline_layout.h"

#include <algorithm>
#include <cmath>

namespace kirto {

void TimelineLayout::Update(const Animation& animation, double units_per_second, double scale,
                            const Pause& instead) {
    const auto count = static_cast<size_t>(animation.frames.Size());
    ends_.clear();
    seconds_.clear();
    starts_.clear();
    ends_.reserve(count);
    seconds_.reserve(count);
    starts_.reserve(count);
    double x = 0;
    double time = 0;
    for (const FramePointer& frame : animation.frames) {
        const bool replaced = instead.frame == static_cast<int32>(ends_.size());
        double seconds = replaced ? instead.seconds : animation.PauseOf(*frame) / units_per_second;
        if (!(seconds > 0)) seconds = 0;
        x += std::round(std::clamp(seconds * scale, kNarrowest, kWidest));
        ends_.push_back(x);
        seconds_.push_back(seconds);
        starts_.push_back(time);
        time += seconds;
    }
}

double TimelineLayout::LeftOf(int32 frame) const {
    return frame == 0 ? 0 : RightOf(frame - 1);
}

int32 TimelineLayout::BlockAt(double x) const {
    const auto after = std::upper_bound(ends_.begin(), ends_.end(), x);
    return std::min(static_cast<int32>(after - ends_.begin()), Count() - 1);
}

int32 TimelineLayout::EdgeAt(double x, double distance) const {
    if (Count() == 0) return -1;
    const int32 block = BlockAt(x);
    if (std::abs(RightOf(block) - x) <= distance) return block;
    return block > 0 && std::abs(LeftOf(block) - x) <= distance ? block - 1 : -1;
}

int32 TimelineLayout::DropPosition(double x) const {
    if (Count() == 0) return 0;
    const int32 block = BlockAt(x);
    return x > (LeftOf(block) + RightOf(block)) / 2 ? block + 1 : block;
}

std::pair<int32, int32> TimelineLayout::Between(double left, double right) const {
    const auto first = std::lower_bound(ends_.begin(), ends_.end(), left);
    const auto last = std::lower_bound(first, ends_.end(), right);
    const auto end = last == ends_.end() ? last : last + 1;
    return {static_cast<int32>(first - ends_.begin()), static_cast<int32>(end - ends_.begin())};
}

}  // namespace kirto
