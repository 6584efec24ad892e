// What a process gives up before it looks at bytes of unknown origin.
#pragma once

#include "base/types.h"

namespace kirto {

// Limits the process to so many bytes of memory beyond those that it has, to few open files and to
// files of that size, without images of its memory when it crashes.
void LimitResources(uint64 memory);

// From here on the process and its threads can compute, take memory, talk through what is open
// already, and nothing else: no network, no other processes, no files, except, with reads_files,
// to read some. Whatever else is asked for is refused by the kernel. False where the kernel has no
// such filter, and in programs with sanitizers, which make calls of their own; the limits alone
// hold then.
bool ForbidSystemCalls(bool reads_files);

}  // namespace kirto
