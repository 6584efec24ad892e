#include "ui/controls/frame_selector.h"

#include <algorithm>

#include "document/command_codes.h"

namespace kirto {

namespace {

BMessage Selecting(const FrameSet& frames, int32 current) {
    BMessage message(kSelectFrames);
    message.AddString("frames", TextOf(frames));
    message.AddInt32("current", current);
    return message;
}

}  // namespace

FrameSelector::Mode FrameSelector::ModeOf(Qt::KeyboardModifiers modifiers) {
    if (modifiers & Qt::ShiftModifier) return Mode::kUpTo;
    return modifiers & Qt::ControlModifier ? Mode::kToggle : Mode::kAlone;
}

BMessage FrameSelector::Choose(const Animation& shown, int32 frame, Mode mode) {
    const bool known = frame >= 0 && frame < shown.frames.Size();
    if (mode == Mode::kAlone || !known) {
        if (known) anchor_ = frame;
        BMessage message(kSelectFrame);
        message.AddInt32("number", frame);
        return message;
    }
    if (mode == Mode::kUpTo) {
        if (anchor_ < 0 || anchor_ >= shown.frames.Size()) anchor_ = shown.selected;
        const auto [first, last] = std::minmax(anchor_, frame);
        return Selecting(FrameSet::Of(first, last), frame);
    }
    anchor_ = frame;
    FrameSet frames = shown.Selection();
    frames.Toggle(frame);
    // One frame stays selected.
    return frames.Empty() ? Selecting(shown.Selection(), frame) : Selecting(frames, frame);
}

BMessage FrameSelector::ChooseAround(const Animation& shown, FrameSet frames, bool added) {
    if (added) {
        for (const FrameSet::Range& range : shown.several.Ranges())
            frames.Add(range);
        if (shown.several.Empty()) frames.Add({shown.selected, shown.selected});
    }
    return Selecting(frames, shown.selected);
}

BMessage FrameSelector::MakeCurrent(const Animation& shown, int32 frame) {
    return Selecting(shown.Selection(), frame);
}

}  // namespace kirto
