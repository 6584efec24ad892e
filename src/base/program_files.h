#pragma once

#include <optional>
#include <string>

namespace kirto {

// The folder that the running program lies in. Nothing where the system does not tell.
std::optional<std::string> ProgramFolder();

// Where a file lies that belongs to a program in this folder: beside the program, as both are
// built, else in the folder "installed", which is given as seen from the program's, as they are
// installed. The former where neither exists. So a tree of installed files works wherever it is
// moved.
std::string ProgramFile(const std::string& program_folder, const std::string& name,
                        const std::string& installed);

}  // namespace kirto
