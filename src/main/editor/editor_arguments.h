#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kirto {

// What the editor's command line asks for.
struct EditorArguments {
    std::vector<std::string> files;  // to open, as an animation, or to insert, as images
    std::string screenshot;          // where to write a picture of the window; empty: nowhere
};

// Reads the command line, without the toolkit's options. An exit status means that the program ends
// with it at once: help or the version was asked for and printed (0), or the usage is wrong and the
// reason is on standard error (2).
std::optional<int> ParseArguments(int argc, const char* const* argv, EditorArguments* arguments);

// Prints the help or the version, where the command line asks for one of them, whatever else is on
// it; then the program ends with the exit status.
std::optional<int> ParseInformation(int argc, const char* const* argv);

}  // namespace kirto
