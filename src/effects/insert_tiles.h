// Cutting one picture into a grid of frames.
#pragma once

#include "document/animation_document.h"
#include "effects/tile_layout.h"
#include "kit/entry_ref.h"
#include "kit/translator_roster.h"

namespace kirto {

// Cuts the file's picture into rows x columns tiles of equal size (what is left over at the right
// and the bottom belongs to no tile) and inserts each as a frame after the current one. Grids
// without rows or columns, or with more of them than pixels, unreadable files and running out of
// memory are reported; in the last case the tiles inserted so far stay. A valid grid without a file
// (null) does nothing. Runs on the application's thread. False when the document's work was stopped
// before the last tile; those inserted stay.
bool InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster);

}  // namespace kirto
