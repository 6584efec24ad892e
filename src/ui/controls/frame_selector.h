#pragma once

#include <Qt>

#include "animation/animation.h"
#include "kit/message.h"

namespace kirto {

// Turns clicks and keys on frames into selections, as lists of a desktop do: with Shift from where
// the last one without it was, with Ctrl one frame in or out. GUI thread.
class FrameSelector {
  public:
    enum class Mode { kAlone, kUpTo, kToggle };

    static Mode ModeOf(Qt::KeyboardModifiers modifiers);

    // The command that makes this the selection, and the frame current. shown: what the user sees;
    // frame: any number.
    BMessage Choose(const Animation& shown, int32 frame, Mode mode);
    // The frames that a frame was drawn around; added: beside those that are selected already.
    static BMessage ChooseAround(const Animation& shown, FrameSet frames, bool added);
    // Makes a selected frame the current one; all stay selected.
    static BMessage MakeCurrent(const Animation& shown, int32 frame);

  private:
    int32 anchor_ = -1;  // where a selection by Shift begins
};

}  // namespace kirto
