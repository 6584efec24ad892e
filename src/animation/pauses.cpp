#include "animation/pauses.h"

#include <cmath>

#include "base/number.h"

namespace kirto {

namespace {

using Unit = PauseChange::Unit;

double Changed(double pause, const PauseChange& change, double units_per_second) {
    switch (change.unit) {
        case Unit::kMilliseconds:
            return change.value * units_per_second / kMillisecondsPerSecond;
        case Unit::kFramesPerSecond:
            return units_per_second / change.value;
        case Unit::kPercent:
            return pause * change.value / 100;
        default:
            return change.value;
    }
}

}  // namespace

bool ChangePauses(Animation& animation, const FrameSet& frames, const PauseChange& change,
                  double units_per_second) {
    bool changed = false;
    for (const int32 i : frames.Positions()) {
        const FramePointer frame = animation.frames.At(i);
        if (frame->use_pause && !change.own_pauses) continue;
        const double pause = Changed(animation.PauseOf(*frame), change, units_per_second);
        if (frame->use_pause && frame->pause_length == pause) continue;
        EditFrame(animation, i, [pause](Frame& each) {
            each.use_pause = true;
            each.pause_length = pause;
        });
        changed = true;
    }
    return changed;
}

bool ChangePauseOfAll(Animation& animation, const PauseChange& change, double units_per_second) {
    const Animation before = animation;
    const bool relative = change.unit == Unit::kPercent;
    for (int32 i = 0; change.own_pauses && i < animation.frames.Size(); ++i) {
        const FramePointer frame = animation.frames.At(i);
        if (!frame->use_pause) continue;
        const double pause = Changed(frame->pause_length, change, units_per_second);
        EditFrame(animation, i, [=](Frame& each) {
            each.use_pause = relative;
            if (relative) each.pause_length = pause;
        });
    }
    animation.pause_length = Changed(animation.pause_length, change, units_per_second);
    if (!relative) animation.use_pause = true;
    return !(animation == before);
}

std::optional<PauseChange> ParsePauseChange(std::string_view text) {
    PauseChange change;
    const auto take = [&](std::string_view suffix, Unit unit) {
        if (!text.ends_with(suffix)) return false;
        text.remove_suffix(suffix.size());
        change.unit = unit;
        return true;
    };
    take("ms", Unit::kMilliseconds) || take("fps", Unit::kFramesPerSecond) ||
        take("%", Unit::kPercent);
    if (!ParseNumber(text, &change.value) || !std::isfinite(change.value)) return std::nullopt;
    const bool divides = change.unit == Unit::kFramesPerSecond || change.unit == Unit::kPercent;
    if (change.value < 0 || (divides && change.value == 0)) return std::nullopt;
    return change;
}

double PauseOfAll(const Animation& animation, const FrameSet& frames) {
    double sum = 0;
    for (const FrameSet::Range range : frames.Ranges()) {
        for (int32 i = range.first; i <= range.last; ++i)
            sum += animation.PauseOf(*animation.frames.At(i));
    }
    return sum;
}

}  // namespace kirto
