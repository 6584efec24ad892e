#pragma once

#include "animation/animation.h"
#include "settings/prefs.h"

namespace kirto {

// An animation without frames that has the properties that the settings give a new one. A palette
// of the kind "from a file" (7) keeps the web-safe colors: loading the file is the caller's.
Animation NewAnimation(const Prefs& settings);

}  // namespace kirto
