// The commands that edit the pictures of frames.
#pragma once

#include <string>

#include "document/animation_document.h"
#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// The name of the edit in the "Edit" menu, or null when the code is not one of these commands.
const char* PictureEditName(uint32 code);

// Carries out such a command, as one change that marks the document modified; stopped, or out of
// memory, it changes nothing. Returns what the status line is to say, which is nothing where all is
// done. Runs on the application's thread.
std::string ApplyPictureEdit(AnimationDocument& document, const BMessage& message,
                             BTranslatorRoster& roster);

}  // namespace kirto
