#pragma once

#include <memory>

#include "document/animation_document.h"
#include "document/document_state.h"

namespace kirto {

// What the windows show: the document as it was when they last looked at it. It does not change
// between two looks, even if the document does. GUI thread. Before the first look it is an empty
// animation with built-in settings.
class ShownDocument {
  public:
    ShownDocument();

    // Never blocks.
    void Take(const AnimationDocument& document) { state_ = document.CurrentState(); }
    // An empty document, from the settings' defaults.
    void Reset();

    const DocumentState& State() const { return *state_; }
    const std::shared_ptr<const DocumentState>& StatePointer() const { return state_; }
    const Animation& Current() const { return *state_->animation; }
    const Prefs& Settings() const { return *state_->settings; }
    const FrameSequence& Frames() const { return Current().frames; }
    int32 FrameCount() const { return Frames().Size(); }
    int32 Selected() const { return Current().selected; }
    // Null without frames.
    FramePointer FirstFrame() const { return Current().FirstFrame(); }
    FramePointer CurrentFrame() const { return Current().CurrentFrame(); }

  private:
    std::shared_ptr<const DocumentState> state_;  // never null
};

}  // namespace kirto
