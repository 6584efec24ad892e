#pragma once

#include <string>

namespace kirto {

// Path of the decoder that belongs to the running program; empty where the system does not tell,
// which no process is started from.
std::string DecoderProgram();

}  // namespace kirto
