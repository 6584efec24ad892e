#pragma once

#include <memory>
#include <vector>

#include "animation/animation.h"
#include "base/types.h"
#include "effects/fade.h"

namespace kirto {

// The fade that a command such as kFadeToColor asks for.
FadeMode FadeModeOf(uint32 command);

// The current frame, the frames that a fade would add, and the neighbor that it leads to or comes
// from, in their order and no more than side pixels wide and high: blended by the fade itself, of
// frames made smaller before. Empty where there is nothing to fade, and where memory is short. Says
// nothing to anybody. color: red, green, blue from the top byte on.
std::vector<std::shared_ptr<const Picture>> FadePreview(const Animation& animation, uint32 command,
                                                        int32 count, uint32 color, int32 side);

}  // namespace kirto
