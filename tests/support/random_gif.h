// GIF files made at random, of all that players have to understand.
#pragma once

#include <vector>

#include "base/types.h"

namespace kirto::test {

// A sound file: every disposal, images inside the screen and beyond it, tables of their own or none
// at all, transparency, every code size that holds the indices, interlacing, pauses of 0, loop
// blocks of both names. The same for the same seed.
std::vector<uint8> RandomGif(uint32 seed);

}  // namespace kirto::test
