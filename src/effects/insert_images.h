// Turning image files into frames.
#pragma once

#include "document/animation_document.h"
#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// Inserts each file of the message's field "refs" as one frame, in order, from the position on that
// the int32 "position" says (clamped to the list; -1 and no field mean after the current frame),
// and makes the last one current. Files that no translator reads are reported and skipped; a ref
// without a file name ends the insertion, and so does running out of memory, which is reported.
// Runs on the application's thread; the frames inserted so far stay. False when the document's work
// was stopped before the last file.
bool InsertImages(AnimationDocument& document, const BMessage& message, BTranslatorRoster& roster);

}  // namespace kirto
