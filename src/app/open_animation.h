// Opening animation files into a document: the decoders, and what is worked out once they are done.
#pragma once

#include <string>

#include "document/animation_document.h"
#include "kit/file.h"

namespace kirto {

enum class AnimationType { kNone, kGif, kFli };

// What kind of animation the name or the MIME type says a file is. The name parts match anywhere in
// the leaf name, case-sensitively; GIF is tested first.
AnimationType ClassifyAnimation(const std::string& leaf_name, const std::string& mime_type);
// Looks at the file's first bytes only, and sets the position back to the start.
AnimationType ClassifyContent(BFile* file);

// Decodes the file into the document from the position on. On failure tells the user if memory ran
// out, asks whether to keep what was decoded ("Salvage", the default if the document had other
// frames before) or not ("OK", which resets the document), and returns false either way. When the
// document's work is stopped, keeps what was decoded and returns false. After a GIF, palettes are
// recognized and the commonest pause becomes the animation's; a FLI animation loops forever.
bool OpenGif(BFile* file, int32 position, AnimationDocument& document);
bool OpenFli(BFile* file, int32 position, AnimationDocument& document);

}  // namespace kirto
