#include "animation/pauses.h"

#include <cmath>

#include "base/number.h"

namespace kirto {

namespace {

using Unit = PauseChange::Unit;

double Changed(double pause, const PauseChange& change, double units_per_second) {
    switch (change.unit) {
        case Unit::kMilliseconds:
            return change.value * units_per_second / 1000;
        case Unit::kFramesPerSecond:
            return units_per_second / change.value;
        case Unit::kPercent:
            return pause * change.value / 100;
        default:
            return change.value;
    }
}

void ChangeSelected(Animation& animation, const PauseChange& change, double units_per_second) {
    for (const int32 i : animation.Selection().Positions()) {
        const FramePointer frame = animation.frames.At(i);
        if (frame->use_pause && !change.own_pauses) continue;
        const double pause = Changed(animation.PauseOf(*frame), change, units_per_second);
        if (frame->use_pause && frame->pause_length == pause) continue;
        EditFrame(animation, i, [pause](Frame& each) {
            each.use_pause = true;
            each.pause_length = pause;
        });
    }
}

void ChangeAll(Animation& animation, const PauseChange& change, double units_per_second) {
    const bool relative = change.unit == Unit::kPercent;
    if (change.own_pauses) {
        for (int32 i = 0; i < animation.frames.Size(); ++i) {
            const FramePointer frame = animation.frames.At(i);
            if (!frame->use_pause) continue;
            const double pause = Changed(frame->pause_length, change, units_per_second);
            EditFrame(animation, i, [=](Frame& each) {
                each.use_pause = relative;
                if (relative) each.pause_length = pause;
            });
        }
    }
    animation.pause_length = Changed(animation.pause_length, change, units_per_second);
    if (!relative) animation.use_pause = true;
}

}  // namespace

bool ChangePauses(Animation& animation, const PauseChange& change, double units_per_second) {
    if (animation.frames.Empty()) return false;
    const Animation before = animation;
    if (change.frames == PauseChange::Frames::kSelected) {
        ChangeSelected(animation, change, units_per_second);
    } else {
        ChangeAll(animation, change, units_per_second);
    }
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
