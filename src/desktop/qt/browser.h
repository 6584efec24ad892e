#pragma once

#include <string>

namespace kirto {

// Shows the file, given by its absolute path, in the user's web browser: the one that $BROWSER
// names, else the desktop's default browser, else the default program for GIF files. The program
// goes on by itself. False when none could be started. Callable from any thread; waits for the
// desktop's answers, a few seconds at the longest.
bool OpenInBrowser(const std::string& path);

}  // namespace kirto
