// The edits of single fields that the main window's panels ask for.
#pragma once

#include "document/animation_document.h"
#include "kit/message.h"

namespace kirto {

// The name of the edit in the "Edit" menu, or null when the code is not one of these edits.
const char* EditName(uint32 code);

// Carries out the edit and marks the document modified. Does nothing when an edit of the current
// frame finds none, or when the message lacks its field "value". Returns false when the code is not
// one of these edits.
bool ApplyEdit(AnimationDocument& document, const BMessage& message);

}  // namespace kirto
