// What kind of file a file is, as the desktop knows it.
#pragma once

#include <string>

namespace kirto {

// The file's MIME type: what its extended attribute user.mime_type says, else what the desktop's
// MIME database says of its name, else of its first bytes. Animations of the FLI family are
// "video/x-fli", whichever of their names the desktop uses. "inode/directory" for folders; empty
// for what is neither file nor folder and when nobody knows. Links are followed. Callable from any
// thread.
std::string MimeTypeOf(const std::string& path);

}  // namespace kirto
