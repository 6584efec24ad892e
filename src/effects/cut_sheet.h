// Cutting one picture into frames.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "document/animation_document.h"
#include "kit/entry_ref.h"
#include "kit/translator_roster.h"

namespace kirto {

// A part of a sheet that becomes a frame.
struct SheetTile {
    std::string name;
    int32 left = 0;  // on the sheet, as all of it is
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
    int32 x_offset = 0;
    int32 y_offset = 0;
    // The canvas, where the first frame of all sets it; 0: the tile's own size.
    int32 whole_width = 0;
    int32 whole_height = 0;
    std::optional<double> pause;  // its own, in the unit of pause lengths
};

struct SheetCut {
    int32 count = 0;
    // Tile i, 0 to count - 1; any thread may ask.
    std::function<SheetTile(int32 i)> tile;
};

struct SheetEnd {
    int32 inserted = 0;
    bool out_of_memory = false;
};

// The file's picture, in a 32-bit space, or null: because the work was stopped, or after telling
// the user why.
std::shared_ptr<BBitmap> ReadSheet(AnimationDocument& document, const entry_ref& ref,
                                   BTranslatorRoster& roster);

// Makes frames of the tiles and inserts them after the current frame, until memory runs out, which
// it leaves to the caller to tell, or the work is stopped. Runs on the application's thread.
SheetEnd CutSheet(AnimationDocument& document, const BBitmap& sheet, const SheetCut& cut);

}  // namespace kirto
