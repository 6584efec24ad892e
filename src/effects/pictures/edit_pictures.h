#pragma once

#include "animation/frame_set.h"
#include "document/animation_document.h"
#include "effects/pictures/picture_edit.h"

namespace kirto {

enum class EditEnd {
    kDone,         // also where nothing had to change
    kStopped,      // nothing has changed
    kOutOfMemory,  // nothing has changed; the user has been told
};

// Carries out the edit on those frames, several pictures at a time, and on the canvas, as one
// change that marks the document modified. Frames that show the same picture share what comes of
// it, pictures the strips that they have in common with the one before. Frames without rows, and
// animations without a canvas, stay as they are. Posts how far it is, and 'auda' is up to the
// caller. frames: of the current animation. Runs on the application's thread.
EditEnd EditPictures(AnimationDocument& document, const PictureEdit& edit, const FrameSet& frames);

}  // namespace kirto
