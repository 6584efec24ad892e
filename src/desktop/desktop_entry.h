// The desktop's descriptions of installed applications.
#pragma once

#include <string>
#include <vector>

namespace kirto {

// How the application with this id ("firefox.desktop") is called to show the file, given by its
// absolute path: the program, then its arguments. Its description is looked for in the user's and
// the system's data folders ($XDG_DATA_HOME, $XDG_DATA_DIRS). Empty when there is none, when it is
// hidden or names no program, and for an application that needs a terminal.
std::vector<std::string> DesktopEntryCall(const std::string& id, const std::string& file);

}  // namespace kirto
