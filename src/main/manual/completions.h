#pragma once

#include <string>

#include "main/manual/program_text.h"

namespace kirto {

// What the shells read to complete the program's options and their values: words where an option
// takes one of several, files otherwise. Each ends in a line break.

std::string BashCompletion(const ProgramText& program);
std::string ZshCompletion(const ProgramText& program);
std::string FishCompletion(const ProgramText& program);

}  // namespace kirto
