// Opening animation files into a document: the decoders, and what is worked out once they are done.
#pragma once

#include <string>

#include "document/animation_document.h"
#include "platform/file.h"

namespace kirto {

enum class AnimationType { kNone, kGif, kFli };

// What kind of animation the name or the MIME type says a file is. The name parts are looked for
// anywhere in the leaf name and are case-sensitive; GIF is asked first.
AnimationType ClassifyAnimation(const std::string& leaf_name, const std::string& mime_type);
// By the file's first bytes alone. The position goes back to the start.
AnimationType ClassifyContent(BFile* file);

// Decodes the file into the document from the position on. On failure the user is told when memory
// was too short, and is asked whether to keep what was decoded ("Salvage", the default where the
// document had other frames before) or not ("OK", which resets the document); the result is false
// either way. After a GIF, palettes are recognised and
// pauses are shared out between the animation and its frames; a FLI animation loops for ever.
bool OpenGif(BFile* file, int32 position, AnimationDocument& document);
bool OpenFli(BFile* file, int32 position, AnimationDocument& document);

}  // namespace kirto
