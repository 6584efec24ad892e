// FLI and FLC files made at random, of all that players have to understand.
#pragma once

#include <vector>

#include "base/types.h"

namespace kirto::test {

// A sound file: every kind of chunk, colors of six and of eight bits, prefix and unknown records
// and chunks, frames without chunks. The same for the same seed.
std::vector<uint8> RandomFli(uint32 seed);

}  // namespace kirto::test
