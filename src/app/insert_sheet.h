// Frames from a sheet that a JSON text describes.
#pragma once

#include <optional>
#include <string>

#include "document/animation_document.h"
#include "formats/sheet/sheet_description.h"
#include "kit/entry_ref.h"
#include "kit/translator_roster.h"

namespace kirto {

// Whether the file is such a text, by its name.
bool IsSheetDescription(const entry_ref& ref);

// The text; nothing where it can't be read or describes no sheet. Any thread.
std::optional<SheetDescription> ReadSheetText(const entry_ref& ref);
// The picture that a text in that place is about: the one it names, or the one of the same name as
// PNG.
entry_ref PictureOfSheet(const entry_ref& ref, const SheetDescription& description);

// Reads the text, and the picture beside it that it names (or the one of the same name, as PNG),
// and inserts its frames after the current one, with their names, places and durations. Texts and
// pictures that can't be read, frames that are not on the picture and running out of memory are
// reported; in the last case the frames inserted so far stay. Runs on the application's thread.
// False when the document's work was stopped before the last frame; those inserted stay.
bool InsertSheet(AnimationDocument& document, const entry_ref& ref, BTranslatorRoster& roster);

}  // namespace kirto
