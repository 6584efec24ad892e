// Palettes as frames and animations keep them: shared by all copies, and never changed.
#pragma once

#include <memory>

#include "color/palette.h"

namespace kirto {

// The web-safe palette that everything starts with; one object for all. Never null.
std::shared_ptr<const Palette> DefaultPalette();

// A palette on the heap that its maker may still change until others see it. Null when memory is
// short.
std::shared_ptr<Palette> SharePalette(const Palette& palette = Palette());

}  // namespace kirto
