#include "animation/animation.h"

#include <algorithm>

namespace kirto {

FramePointer Animation::FrameLargerThanCanvas() const {
    const auto larger = std::find_if(frames.begin(), frames.end(), [this](const auto& frame) {
        return frame->width > width || frame->height > height;
    });
    return larger == frames.end() ? nullptr : *larger;
}

bool operator==(const Animation& a, const Animation& b) {
    return a.width == b.width && a.height == b.height && a.loop_count == b.loop_count &&
           a.use_loop == b.use_loop && a.use_pause == b.use_pause &&
           a.pause_length == b.pause_length && a.selected == b.selected &&
           (a.palette == b.palette || *a.palette == *b.palette) && a.frames == b.frames;
}

bool InsertFrame(Animation& animation, int32 position, FramePointer frame) {
    if (position < 0 || position > animation.frames.Size()) return false;
    if (animation.frames.Empty()) animation.selected = 0;
    animation.frames.Insert(position, std::move(frame));
    return true;
}

bool RemoveCurrentFrame(Animation& animation) {
    if (animation.selected == -1) return false;
    animation.frames.Remove(animation.selected);
    animation.selected = std::min(animation.selected, animation.frames.Size() - 1);
    return true;
}

bool MoveCurrentFrame(Animation& animation, bool up) {
    const int32 target = animation.selected + (up ? -1 : 1);
    if (animation.selected == -1 || target < 0 || target >= animation.frames.Size()) return false;
    animation.frames.Swap(animation.selected, target);
    animation.selected = target;
    return true;
}

bool ReverseFrames(Animation& animation) {
    if (animation.frames.Size() <= 1) return false;
    animation.frames.Reverse();
    return true;
}

bool SelectFrame(Animation& animation, int32 i) {
    if (i < 0 || i >= animation.frames.Size() || i == animation.selected) return false;
    animation.selected = i;
    return true;
}

}  // namespace kirto
