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
    enum class Frames { kSelected, kAll };

    Unit unit = Unit::kPauseUnits;  // kPauseUnits: those of the animation's pause lengths
    double value = 0;               // 0 or more; frames per second above 0
    Frames frames = Frames::kSelected;
    // Also of frames that have a pause of their own; else those stay as they are.
    bool own_pauses = true;
};

// Of a pause length that counts hundredths, or whole seconds.
constexpr double PauseUnitsPerSecond(bool in_seconds) {
    return in_seconds ? 1 : 100;
}

// Sets the pauses: of the selected frames, each gets one of its own; of all frames, that of the
// animation is set and used, and frames get rid of their own, but for a percentage, which each
// keeps by itself. Returns false when nothing has changed.
bool ChangePauses(Animation& animation, const PauseChange& change, double units_per_second);

// Reads "40ms", "15fps", "150%" and "4" (in units of pauses). Only percentages from above 0 up, and
// frames per second above 0, are pauses; empty for all other text.
std::optional<PauseChange> ParsePauseChange(std::string_view text);

// The sum of the frames' pauses, in their unit.
double PauseOfAll(const Animation& animation, const FrameSet& frames);

}  // namespace kirto
