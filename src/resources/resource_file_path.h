#pragma once

#include <string>

namespace kirto {

// Where the program's resources lie: "kirto.rsrc" beside the program, as it is built, else
// "../share/kirto/kirto.rsrc" seen from there, as it is installed. The former where neither exists.
std::string ResourceFilePath();

// The same for a program in this folder.
std::string ResourceFilePath(const std::string& program_folder);

}  // namespace kirto
