#include "formats/faithful/untouched_frames.h"

#include "animation/gif_source.h"

namespace kirto {

namespace {

// Whether there never was a value to point to, and not that it is gone.
bool IsFirst(const std::weak_ptr<const GifSource>& previous) {
    const std::weak_ptr<const GifSource> none;
    return !previous.owner_before(none) && !none.owner_before(previous);
}

bool ShowsItsSource(const Animation& animation, const Frame& frame) {
    const GifSource* const source = frame.source.get();
    if (!source || !source->table || !source->codes || !frame.bitmap) return false;
    return source->picture.lock() == frame.bitmap && frame.x_offset == 0 && frame.y_offset == 0 &&
           frame.width == animation.width && frame.height == animation.height &&
           frame.bitmap->Width() == animation.width && frame.bitmap->Height() == animation.height;
}

}  // namespace

std::vector<bool> UntouchedFrames(const Animation& animation) {
    std::vector<bool> untouched;
    const Frame* before = nullptr;
    for (const FramePointer& frame : animation.frames) {
        bool same = ShowsItsSource(animation, *frame);
        if (same && before) {
            same = untouched.back() && frame->source->previous.lock() == before->source;
        } else if (same) {
            same = IsFirst(frame->source->previous);
        }
        untouched.push_back(same);
        before = frame.get();
    }
    return untouched;
}

}  // namespace kirto
