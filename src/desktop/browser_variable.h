// The user's own choice of programs that show files: the environment variable BROWSER.
#pragma once

#include <string>
#include <vector>

namespace kirto {

// A program, found by its path or in $PATH, and what it is called with.
using ProgramCall = std::vector<std::string>;

// The calls that show the file, in the order in which the user wants them tried: $BROWSER names
// programs with their arguments, separated by colons. The file takes the place of %s, or comes
// last. Empty where the variable is unset or empty.
std::vector<ProgramCall> BrowserVariableCalls(const std::string& file);

}  // namespace kirto
