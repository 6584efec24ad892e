#pragma once

#include <atomic>

#include "animation/animation.h"
#include "base/types.h"
#include "effects/fade.h"

namespace kirto {

// The fade that a command such as kFadeToColor asks for.
FadeMode FadeModeOf(uint32 command);

// What is chosen of a fade.
struct FadeChoice {
    uint32 command = 0;  // kFadeToColor and so on
    int32 count = 0;     // of the new frames
    uint32 color = 0;    // red, green, blue from the top byte on

    bool operator==(const FadeChoice&) const = default;
};

// The current frame, the frames that a fade would add, and the neighbor that it leads to or comes
// from, in their order, with the pauses that they would have, and no more than side pixels wide and
// high: blended as the fade does, of frames made smaller before. No frames where there is nothing
// to fade, where memory is short, and once it is to stop. Says nothing to anybody. Any thread.
Animation FadePreview(const Animation& animation, const FadeChoice& choice, int32 side,
                      const std::atomic<bool>& stop);

}  // namespace kirto
