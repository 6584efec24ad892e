// Edits of the order of an animation's frames as pure functions of the value. They work on the
// selected frames. What has nothing to do changes nothing and returns false. All throw
// std::bad_alloc when memory is short; nothing has changed then.
#pragma once

#include <vector>

#include "animation/animation.h"
#include "base/work.h"

namespace kirto {

// Removes the frames. The one after the current one that is left becomes current, or else the last.
bool RemoveSelected(Animation& animation);
// Moves each frame one place toward the start (up) or the end, as a block: those that stand there
// already stay. The frames stay selected.
bool MoveSelected(Animation& animation, bool up);
// Puts the frames, in their order, before the one that stands at the position, 0..frames.Size().
// They stay selected.
bool MoveSelectedTo(Animation& animation, int32 position);
// Puts copies of the frames, with ids of their own, there. The copies are selected.
bool CopySelectedTo(Animation& animation, int32 position);
// Inserts copies of the frames, with ids of their own, before the position, which is clamped to the
// list. They are selected.
bool InsertCopies(Animation& animation, int32 position, const std::vector<FramePointer>& frames);
// Reverses the order of the frames among the places that they have; of one frame that of the whole
// list. The places stay selected.
bool ReverseSelected(Animation& animation);
// Lets the frames, or all of them where only one is selected, play to the last one and back again:
// copies in reverse order follow the last one, without the first and the last, which are shown
// once in a round. What played is selected then.
bool PlayForwardAndBack(Animation& animation);
// Makes the current frame the first; those before it follow after the last.
bool StartAtCurrent(Animation& animation);

// Remove frames, and let those before them be shown for as long as both were. Of the selected
// frames, or of all where only one is selected. The frame before the current one is current, where
// that one goes.

// The n-th, the 2n-th and so on. n: 2 or more.
bool DropEveryNth(Animation& animation, int32 n);
// Those that show what the frame before them shows. tolerance: by how much a channel of a pixel may
// differ, 0..255. Changes nothing when the work is stopped; null for work that is not.
bool RemoveDuplicates(Animation& animation, int32 tolerance, const Work* work);

}  // namespace kirto
