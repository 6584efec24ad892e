#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "animation/animation.h"
#include "base/types.h"

namespace kirto {

// The places of blocks that stand for frames, one after the other, each as wide as its pause says
// but none narrower than can be hit. Coordinates are units of the whole timeline, from its left
// edge on. A plain value.
class TimelineLayout {
  public:
    static constexpr double kNarrowest = 6;
    static constexpr double kWidest = 100000;

    // Of a frame, what is shown in place of its own pause.
    struct Pause {
        int32 frame = -1;
        double seconds = 0;
    };

    // units_per_second: of the animation's pauses; scale: how wide a second is, above 0.
    void Update(const Animation& animation, double units_per_second, double scale,
                const Pause& instead);

    int32 Count() const { return static_cast<int32>(ends_.size()); }
    double Width() const { return ends_.empty() ? 0 : ends_.back(); }
    // frame: 0 to Count() - 1.
    double LeftOf(int32 frame) const;
    double RightOf(int32 frame) const { return ends_[static_cast<size_t>(frame)]; }
    // How long it is shown, and when it begins, in seconds.
    double SecondsOf(int32 frame) const { return seconds_[static_cast<size_t>(frame)]; }
    double StartOf(int32 frame) const { return starts_[static_cast<size_t>(frame)]; }

    // The block there; the first or the last beside all of them; -1 without any.
    int32 BlockAt(double x) const;
    // The block whose right edge is no farther from there than that, or -1.
    int32 EdgeAt(double x, double distance) const;
    // The position before which something is dropped there, 0 to Count().
    int32 DropPosition(double x) const;
    // The blocks [first, second) that touch left to right.
    std::pair<int32, int32> Between(double left, double right) const;

  private:
    std::vector<double> ends_;
    std::vector<double> seconds_;
    std::vector<double> starts_;
};

}  // namespace kirto
