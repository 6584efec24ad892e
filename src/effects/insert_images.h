// Turning image files into frames.
#pragma once

#include "document/animation_document.h"
#include "effects/images_ahead.h"
#include "kit/message.h"

namespace kirto {

// Inserts each file of the message's field "refs" as one frame, in order, from the position on that
// the int32 "position" says (clamped to the list; -1 and no field mean after the current frame),
// and makes the last one current. Files that no translator reads are reported and skipped; a ref
// without a file name ends the insertion, and so does running out of memory, which is reported.
// "following" may name the files that the next message will ask for, which are read meanwhile.
// Runs on the application's thread; the frames inserted so far stay. False when the document's work
// was stopped before the last file. images: of the document's work and budget.
bool InsertImages(AnimationDocument& document, const BMessage& message, ImagesAhead& images);

}  // namespace kirto
