#include "effects/insert_tiles.h"

#include <optional>
#include <vector>

#include "base/core_text.h"
#include "base/text.h"
#include "effects/cut_sheet.h"
#include "kit/alert.h"

namespace kirto {

namespace {

constexpr const char* kIllegalGrid = CoreText::Later(
    "This frame can't be inserted because the number of rows or columns is illegal.");

// The numbers of the tiles that become frames; nothing when the work was stopped.
std::optional<std::vector<int32>> TilesWithPixels(const BBitmap& picture, const TileLayout& layout,
                                                  const Work& work) {
    std::vector<int32> numbers;
    for (int32 i = 0; i < layout.Count(); ++i) {
        if (work.StopRequested()) return std::nullopt;
        if (!IsEmptyTile(picture, layout.PlaceOf(i))) numbers.push_back(i);
    }
    return numbers;
}

SheetTile TileAt(const TileLayout& layout, int32 number) {
    const TilePlace place = layout.PlaceOf(number);
    SheetTile tile;
    tile.name = Format("tiled%04d", number);
    tile.left = place.left;
    tile.top = place.top;
    tile.width = place.width;
    tile.height = place.height;
    return tile;
}

}  // namespace

bool InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster) {
    if (!grid.IsSound()) {
        Warn(kIllegalGrid);
        return true;
    }
    if (!ref) return true;
    const std::shared_ptr<BBitmap> picture = ReadSheet(document, *ref, roster);
    if (!picture) return !document.StopRequested();
    const TileLayout layout(picture->Width(), picture->Height(), grid);
    if (layout.Count() <= 0 || layout.Count() > INT32_MAX) {
        Warn(kIllegalGrid);
        return true;
    }
    std::optional<std::vector<int32>> some;
    if (grid.skip_empty) {
        some = TilesWithPixels(*picture, layout, document.work);
        if (!some) return false;
    }
    SheetCut cut;
    cut.count = static_cast<int32>(some ? static_cast<int64>(some->size()) : layout.Count());
    cut.tile = [&](int32 i) { return TileAt(layout, some ? (*some)[static_cast<size_t>(i)] : i); };
    const SheetEnd end = CutSheet(document, *picture, cut);
    if (end.out_of_memory) {
        WarnOutOfMemory();
        return true;
    }
    if (end.inserted > 0) document.SetModified(true);
    return end.inserted == cut.count;
}

}  // namespace kirto
