#pragma once

#include <string>

#include "kit/message.h"

namespace kirto {

// Makes the archive of a window (window_archive.h) from its readable source, a TOML file like
// resources/preferences_window.toml. False, with a sentence that names the file and the line in
// *error, if the source is not a valid layout; *archive is untouched then.
bool CompileWindowLayout(const std::string& path, BMessage* archive, std::string* error);

}  // namespace kirto
