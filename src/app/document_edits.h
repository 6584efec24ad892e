// The edits of single fields that the main window's panels ask for.
#pragma once

#include "document/animation_document.h"
#include "platform/message.h"

namespace kirto {

// Carries out the edit and marks the document modified. An edit of the
// current frame does nothing without one, and a message without its field "value" does nothing.
// False when the code is none of these edits.
bool ApplyEdit(AnimationDocument& document, const BMessage& message);

}  // namespace kirto
