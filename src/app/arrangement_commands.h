// The commands that arrange and retime several frames at a time.
#pragma once

#include "document/animation_document.h"
#include "kit/message.h"

namespace kirto {

// The name of the edit in the "Edit" menu, or null when the code is not one of these commands.
const char* ArrangementName(uint32 code);

// Carries out the command and marks the document modified if it has changed. Does nothing when the
// message lacks one of its fields. Returns false when the code is not one of these commands.
bool ApplyArrangement(AnimationDocument& document, const BMessage& message);

// kSelectFrames. True when the selection has changed.
bool SelectFrames(AnimationDocument& document, const BMessage& message);

}  // namespace kirto
