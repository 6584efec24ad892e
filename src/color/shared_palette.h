// Palettes as frames and animations keep them: shared by all copies, and never changed.
#pragma once

#include <memory>

#include "color/palette.h"

namespace kirto {

// The web-safe palette that everything starts with; one object for all. Never null.
std::shared_ptr<const Palette> DefaultPalette();

// A copy on the heap, or null when memory is short.
std::shared_ptr<const Palette> SharePalette(const Palette& palette);

}  // namespace kirto
