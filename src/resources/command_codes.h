// Commands of the window framework.
#pragma once

#include "base/types.h"

namespace kirto {

// The application to itself: its resources can't be opened, so it ends.
inline constexpr uint32 kResourcesMissing = FourCharCode("IEsd");

}  // namespace kirto
