// Writing a document to an animated GIF file.
#pragma once

#include <string>

#include "document/animation_document.h"
#include "platform/types.h"

namespace kirto {

enum class SaveResult {
    kSaved,
    kFrameTooLarge,   // a frame is larger than the canvas; nothing was written
    kFileNotCreated,  // the file can't be made at this place
    kWriteFailed,     // writing broke off; an old file is untouched
};

// Encodes the document into the file at path, which is replaced as a whole or not at all. The
// caller holds the reader lock and has let the global palette follow its frame
// (UpdateGlobalPalette). The document is not changed.
SaveResult SaveAnimatedGif(AnimationDocument& document, const std::string& path);

}  // namespace kirto
