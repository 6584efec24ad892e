// Showing a file in another program.
#pragma once

#include <string>

namespace kirto {

// Shows the file in one of the programs that $BROWSER names, else in the default web browser, else
// in the default program for its kind, and waits for that program to return. False when none of
// them could be started.
bool RunViewer(const std::string& path);

}  // namespace kirto
