// How long frames are shown, as sums, and set for several at a time.
#pragma once

#include <optional>
#include <string_view>

#include "animation/animation.h"
#include "base/types.h"

namespace kirto {

// What pauses become.
struct PauseChange {
    enum class Unit { kPauseUnits, kMilliseconds, kFramesPerSecond, kPercent };

    Unit unit = Unit::kPauseUnits;  // kPauseUnits: those of the animation's pause lengths
    double value = 0;               // 0 or more; frames per second above 0
    // Also of frames that have a pause of their own; else those stay as they are.
    bool own_pauses = true;
};

inline constexpr double kMillisecondsPerSecond = 1000;

// Of a pause length that counts hundredths, or whole seconds.
constexpr double PauseUnitsPerSecond(bool in_seconds) {
    return in_seconds ? 1 : 100;
}

// Gives each of the frames a pause of its own. They are within 0..frames.Size() - 1. Returns false
// when nothing has changed.
bool ChangePauses(Animation& animation, const FrameSet& frames, const PauseChange& change,
                  double units_per_second);
// Sets the animation's pause and lets it be used, and frames get rid of their own, but for a
// percentage, which all keep by themselves.
bool ChangePauseOfAll(Animation& animation, const PauseChange& change, double units_per_second);

// Reads "40ms", "15fps", "150%" and "4" (in units of pauses). Only percentages from above 0 up, and
// frames per second above 0, are pauses; empty for all other text.
std::optional<PauseChange> ParsePauseChange(std::string_view text);

// The sum of the frames' pauses, in their unit.
double PauseOfAll(const Animation& animation, const FrameSet& frames);

}  // namespace kirto
