// Writing a document to animated GIF files.
#pragma once

#include <string>

#include "base/core_text.h"
#include "document/animation_document.h"

namespace kirto {

// Empty, which no file can be made at, where there is no directory: a bare name would be a file of
// the folder that the program happens to run in.
std::string PathIn(const std::string& directory, const std::string& name);

// The name of one image file of a sequence that is saved as file_name: the number goes before the
// first dot, "anim.png" gives "anim0007.png".
std::string SequenceFileName(const std::string& file_name, int32 index);

// The alert when a file can't be created.
inline constexpr const char* kFileNotCreatedText = CoreText::Later(
    "The animation can't be saved because the file could not be created at this location.");

// The first size or offset that does not fit into a GIF, by the name of its field: "Width", or
// "XOffset of frame0003". Empty when all are between 0 and 65535.
std::string SizeOutOfRange(const Animation& animation);
// Describes the loop count and the pauses that do not fit into a GIF, which keeps their low 16
// bits. Empty when all of them fit.
std::string NumbersCutShort(const Animation& animation, bool in_seconds);

enum class SaveResult {
    kSaved,
    kFrameTooLarge,   // a frame is larger than the canvas; nothing was written
    kSizeOutOfRange,  // SizeOutOfRange() names a field; nothing was written
    kFileNotCreated,  // the file can't be created there
    kWriteFailed,     // writing failed; an existing file is untouched
    kStopped,         // the user asked to stop; an existing file is untouched
};

// Encode the document into the file at path, which is replaced as a whole or not at all. The caller
// has let the global palette follow its frame (UpdateGlobalPalette). The document is not changed.

// Into a file of the user's: a symbolic link leads to its target, permissions are kept. loss, if
// not null: told what browsers show otherwise than the window does, as far as the setting
// "animation_faithful" sees to that; empty: nothing.
SaveResult SaveAnimatedGif(AnimationDocument& document, const std::string& path,
                           std::string* loss = nullptr);
// Into a private file that only the user can read; a symbolic link in its place is replaced, never
// followed. Frames may be larger than the canvas.
SaveResult SavePreviewGif(AnimationDocument& document, const std::string& path);

}  // namespace kirto
