#pragma once

#include <string>

#include "main/manual/program_text.h"

namespace kirto {

// The program's manual page of section 1, in the language of man(7). Ends in a line break.
std::string ManualPage(const ProgramText& program);

}  // namespace kirto
