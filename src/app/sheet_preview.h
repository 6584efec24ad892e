// How an image would be cut into frames, for showing it before that is done.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "effects/tile_layout.h"
#include "formats/sheet/sheet_description.h"
#include "kit/entry_ref.h"
#include "kit/translator_roster.h"

namespace kirto {

// An image as the command that inserts tiles reads it.
struct PreviewedSheet {
    std::shared_ptr<const BBitmap> picture;  // 32-bit, with pixels
    // Where a JSON text says what is on the picture.
    std::optional<SheetDescription> description;
};

// A part of the picture that is cut out; skipped: no frame is made of it.
struct PreviewedTile {
    TilePlace place;
    bool skipped = false;
};

// How a sheet is cut.
struct SheetCutting {
    std::vector<PreviewedTile> tiles;  // empty where there are too many to be shown
    std::string text;                  // a sentence about it
};

// These may be called on any thread; they take long for large pictures.

// Reads the file, or the picture that a JSON text is about, within a bound of memory. Nothing where
// there is none, or none that can be inserted; then the text, if any, tells why. given_up: asked
// every now and then, on this thread, whether nobody wants it anymore.
std::optional<PreviewedSheet> ReadSheetToShow(const entry_ref& ref, BTranslatorRoster& roster,
                                              const std::function<bool()>& given_up,
                                              std::string* text);

// What the grid, or the description, makes of the sheet.
SheetCutting CuttingOf(const PreviewedSheet& sheet, const TileGrid& grid);

}  // namespace kirto
