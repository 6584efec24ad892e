// Writes FLC animations: the first frame whole, each later one as what changed since.
#pragma once

#include <string>

#include "indexed_animation.h"

namespace kirto::bench {

// The images are whole frames. False when the file can't be written.
bool WriteFlc(const IndexedAnimation& animation, const std::string& path);

}  // namespace kirto::bench
