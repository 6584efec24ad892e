#pragma once

#include <span>

#include "main/cli/cli_arguments.h"

namespace kirto {

// True when all files that the operations write are there, and each was changed later than every
// file that they read: then there is nothing to be done again. Never true where they write no file
// by one name, as sequences do, or read or write a standard stream.
bool IsUpToDate(std::span<const CliOperation> operations);

}  // namespace kirto
