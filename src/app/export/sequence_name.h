#pragma once

#include <string>

#include "base/types.h"

namespace kirto {

// The name of one image file of a sequence that is saved as file_name: the number goes before the
// first dot, "anim.png" gives "anim0007.png".
std::string SequenceFileName(const std::string& file_name, int32 index);

}  // namespace kirto
