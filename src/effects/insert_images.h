// Turning image files into frames.
#pragma once

#include <vector>

#include "document/animation_document.h"
#include "platform/entry_ref.h"
#include "platform/translator_roster.h"

namespace kirto {

// Inserts each file as one frame, in order, from the position on (clamped to the list), and makes
// the last one current. Files that no translator reads are reported and passed over; running out of
// memory is reported and ends the insertion. Runs on the editing thread, outside the document's
// lock; the frames inserted so far stay.
void InsertImages(AnimationDocument& document, const std::vector<entry_ref>& refs, int32 position,
                  BTranslatorRoster& roster);

}  // namespace kirto
