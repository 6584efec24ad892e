#include "animation/animation.h"

#include <algorithm>

namespace kirto {

FrameSet Animation::Selection() const {
    if (!several.Empty()) return several;
    return selected == -1 ? FrameSet() : FrameSet::Of(selected, selected);
}

double Animation::PauseOf(const Frame& frame) const {
    if (frame.use_pause) return frame.pause_length;
    return use_pause ? pause_length : 0;
}

FramePointer Animation::FrameLargerThanCanvas() const {
    const auto larger = std::find_if(frames.begin(), frames.end(), [this](const auto& frame) {
        return frame->width > width || frame->height > height;
    });
    return larger == frames.end() ? nullptr : *larger;
}

bool operator==(const Animation& a, const Animation& b) {
    return a.width == b.width && a.height == b.height && a.loop_count == b.loop_count &&
           a.use_loop == b.use_loop && a.use_pause == b.use_pause &&
           a.pause_length == b.pause_length && a.selected == b.selected && a.several == b.several &&
           (a.palette == b.palette || *a.palette == *b.palette) && a.frames == b.frames;
}

bool InsertFrame(Animation& animation, int32 position, FramePointer frame) {
    if (position < 0 || position > animation.frames.Size()) return false;
    if (animation.frames.Empty()) animation.selected = 0;
    animation.several = {};
    animation.frames.Insert(position, std::move(frame));
    return true;
}

bool SelectFrame(Animation& animation, int32 i) {
    if (i < 0 || i >= animation.frames.Size()) return false;
    if (i == animation.selected && animation.several.Empty()) return false;
    animation.selected = i;
    animation.several = {};
    return true;
}

bool SelectFrames(Animation& animation, FrameSet frames, int32 current) {
    if (frames.Empty() || frames.First() < 0 || frames.Last() >= animation.frames.Size())
        return SelectFrame(animation, animation.selected);
    const int32 selected = frames.NearestTo(current);
    if (frames.Count() == 1) return SelectFrame(animation, selected);
    if (selected == animation.selected && frames == animation.several) return false;
    animation.selected = selected;
    animation.several = std::move(frames);
    return true;
}

}  // namespace kirto
