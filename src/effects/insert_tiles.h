// Cutting one picture into a grid of frames.
#pragma once

#include "document/animation_document.h"
#include "kit/entry_ref.h"
#include "kit/translator_roster.h"

namespace kirto {

struct TileGrid {
    int32 rows = 0;
    int32 columns = 0;
    bool column_by_column = false;  // order of the tiles; else row by row
    // In pixels, 0 or more. Of all sides of the picture, and between tiles.
    int32 margin = 0;
    int32 spacing = 0;
    // A tile's size; 0: of the rows and columns there are. Where it is given, there are as many
    // rows and columns as have room, whatever stands above; the margin counts at the left and the
    // top only.
    int32 tile_width = 0;
    int32 tile_height = 0;
    bool skip_empty = false;  // no frames of tiles that are transparent everywhere
};

// Cuts the file's picture into rows x columns tiles of equal size (what is left over at the right
// and the bottom belongs to no tile) and inserts each as a frame after the current one. Grids
// without rows or columns, or with more of them than pixels, unreadable files and running out of
// memory are reported; in the last case the tiles inserted so far stay. A valid grid without a file
// (null) does nothing. Runs on the application's thread. False when the document's work was stopped
// before the last tile; those inserted stay.
bool InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster);

}  // namespace kirto
