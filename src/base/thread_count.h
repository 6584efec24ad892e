// How many threads work on what can be split.
#pragma once

#include "base/types.h"

namespace kirto {

inline constexpr int32 kMostThreads = 64;

// 1 to kMostThreads: the number that was set, or else DefaultThreadCount(). Thread-safe.
int32 ThreadCount();

// Sets that number for the whole program, brought within its bounds; 0 for the default.
// Thread-safe.
void SetThreadCount(int32 count);

// What the environment variable KIRTO_THREADS says, brought within the bounds. Where it says no
// number, as many threads as the processor runs at a time.
int32 DefaultThreadCount();

}  // namespace kirto
