#pragma once

#include <memory>

#include "animation/frame_sequence.h"
#include "animation/frame_set.h"
#include "base/types.h"
#include "color/palette.h"
#include "color/shared_palette.h"

namespace kirto {

// A whole animation as a plain value: what the document owns one of, what the history keeps, what
// windows show, what codecs and effects take and give. Copies are cheap and share frames and
// palettes, which never change.
//
// selected is -1 exactly when there are no frames, else it names one. several is empty, or it has
// two members or more and selected is one of them.
struct Animation {
    int32 width = 0;       // canvas, pixels
    int32 height = 0;      // canvas, pixels
    int32 loop_count = 0;  // 0: forever
    bool use_loop = false;
    bool use_pause = false;     // frames without a pause of their own wait pause_length
    double pause_length = 0.0;  // same unit as Frame::pause_length
    std::shared_ptr<const Palette> palette = DefaultPalette();  // never null
    FrameSequence frames;
    int32 selected = -1;  // the current frame's position
    FrameSet several;     // the selected frames where it is not the current one alone

    // Null without frames.
    FramePointer FirstFrame() const { return frames.At(0); }
    FramePointer CurrentFrame() const { return frames.At(selected); }
    // The frames that an operation on the selection works on; empty without frames only.
    FrameSet Selection() const;
    // How long the frame is shown, by itself or by the animation's pause; 0 where neither is used.
    // In the unit of pause_length.
    double PauseOf(const Frame& frame) const;
    // The first frame that is wider or taller than the canvas, or null.
    FramePointer FrameLargerThanCanvas() const;

    // Equal fields, equal palettes, equal frames with the same ids and the same pixels in memory.
    friend bool operator==(const Animation& a, const Animation& b);
};

// Each of these makes a copy of a shared value, lets the caller change it, and puts it in its
// place. Throws std::bad_alloc when memory is short; nothing has changed then.
template <typename Edit>
void EditPalette(Animation& animation, Edit edit) {
    Palette changed = *animation.palette;
    edit(changed);
    animation.palette = std::make_shared<const Palette>(changed);
}

// i: within 0..frames.Size() - 1.
template <typename Edit>
void EditFrame(Animation& animation, int32 i, Edit edit) {
    auto changed = std::make_shared<Frame>(*animation.frames.At(i));
    edit(*changed);
    animation.frames.Replace(i, std::move(changed));
}

template <typename Edit>
void EditFramePalette(Animation& animation, int32 i, Edit edit) {
    EditFrame(animation, i, [&edit](Frame& frame) {
        Palette changed = *frame.palette;
        edit(changed);
        frame.palette = std::make_shared<const Palette>(changed);
    });
}

// Edits each of the selected frames.
template <typename Edit>
void EditSelectedFrames(Animation& animation, Edit edit) {
    const FrameSet selection = animation.Selection();
    for (const FrameSet::Range range : selection.Ranges()) {
        for (int32 i = range.first; i <= range.last; ++i)
            EditFrame(animation, i, edit);
    }
}

// Edits of the list as pure functions of the value. Out of range they change nothing and return
// false. Afterward the current frame alone is selected.

// Inserts the frame at position 0..frames.Size(). The selection keeps its number; the first frame
// of all becomes current.
bool InsertFrame(Animation& animation, int32 position, FramePointer frame);
// Makes another frame current, or the current one the only one that is selected.
bool SelectFrame(Animation& animation, int32 i);
// Selects several frames, and makes that of them current which is nearest to the position. An empty
// set selects the current frame alone. frames: within 0..frames.Size() - 1.
bool SelectFrames(Animation& animation, FrameSet frames, int32 current);

}  // namespace kirto
