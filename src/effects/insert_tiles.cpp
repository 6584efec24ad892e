#include "effects/insert_tiles.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/text.h"
#include "effects/cut_sheet.h"
#include "kit/alert.h"

namespace kirto {

namespace {

constexpr const char* kIllegalGrid =
    "This frame can't be inserted because the number of rows or columns is illegal.";

bool HasTileSize(const TileGrid& grid) {
    return grid.tile_width > 0 && grid.tile_height > 0;
}

bool IsSound(const TileGrid& grid) {
    if (grid.margin < 0 || grid.spacing < 0 || grid.tile_width < 0 || grid.tile_height < 0)
        return false;
    return HasTileSize(grid) || (grid.rows > 0 && grid.columns > 0);
}

// The tiles along one side of a picture.
struct TileLine {
    int64 count = 0;  // 0: the picture has no room for them
    int64 size = 0;   // of each, pixels
    int64 first = 0;  // where the first one begins
    int64 step = 0;   // from one to the next

    int32 Start(int32 i) const { return static_cast<int32>(first + i * step); }
};

// count, size: as far as they are given, else 0.
TileLine LineOf(int64 side, int64 count, int64 size, const TileGrid& grid) {
    TileLine line;
    line.first = grid.margin;
    if (size > 0) {
        line.count =
            std::max<int64>((side - grid.margin + grid.spacing) / (size + grid.spacing), 0);
        line.size = size;
    } else {
        const int64 room = side - 2 * line.first - (count - 1) * grid.spacing;
        line.size = std::max<int64>(room, 0) / count;
        line.count = line.size > 0 ? count : 0;
    }
    line.step = line.size + grid.spacing;
    return line;
}

// The tiles of a grid over a picture.
class TileSheet {
  public:
    TileSheet(const BBitmap& picture, const TileGrid& grid)
        : picture_(picture),
          grid_(grid),
          across_(LineOf(picture.Width(), grid.columns, grid.tile_width, grid)),
          down_(LineOf(picture.Height(), grid.rows, grid.tile_height, grid)) {}

    // 0 where there is no room for them.
    int64 Count() const { return across_.count * down_.count; }
    SheetTile TileAt(int32 number) const {
        const auto rows = static_cast<int32>(down_.count);
        const auto columns = static_cast<int32>(across_.count);
        const int32 row = grid_.column_by_column ? number % rows : number / columns;
        const int32 column = grid_.column_by_column ? number / rows : number % columns;
        SheetTile tile;
        tile.name = Format("tiled%04d", number);
        tile.left = across_.Start(column);
        tile.top = down_.Start(row);
        tile.width = static_cast<int32>(across_.size);
        tile.height = static_cast<int32>(down_.size);
        return tile;
    }
    bool IsEmpty(int32 number) const {
        const SheetTile tile = TileAt(number);
        const size_t alpha = IsBigEndian(picture_.ColorSpace()) ? 0 : 3;
        for (int32 y = tile.top; y < tile.top + tile.height; ++y) {
            const uint8* row = picture_.Row(y) + alpha;
            for (int32 x = tile.left; x < tile.left + tile.width; ++x)
                if (row[static_cast<size_t>(x) * 4] != 0) return false;
        }
        return true;
    }

  private:
    const BBitmap& picture_;
    const TileGrid& grid_;
    const TileLine across_;
    const TileLine down_;
};

// The numbers of the tiles that become frames; nothing when the work was stopped.
std::optional<std::vector<int32>> TilesWithPixels(const TileSheet& sheet, const Work& work) {
    std::vector<int32> numbers;
    for (int32 i = 0; i < sheet.Count(); ++i) {
        if (work.StopRequested()) return std::nullopt;
        if (!sheet.IsEmpty(i)) numbers.push_back(i);
    }
    return numbers;
}

}  // namespace

bool InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster) {
    if (!IsSound(grid)) {
        Warn(kIllegalGrid);
        return true;
    }
    if (!ref) return true;
    const std::shared_ptr<BBitmap> picture = ReadSheet(document, *ref, roster);
    if (!picture) return !document.StopRequested();
    const TileSheet sheet(*picture, grid);
    if (sheet.Count() <= 0 || sheet.Count() > INT32_MAX) {
        Warn(kIllegalGrid);
        return true;
    }
    std::optional<std::vector<int32>> some;
    if (grid.skip_empty) {
        some = TilesWithPixels(sheet, document.work);
        if (!some) return false;
    }
    SheetCut cut;
    cut.count = static_cast<int32>(some ? static_cast<int64>(some->size()) : sheet.Count());
    cut.tile = [&](int32 i) { return sheet.TileAt(some ? (*some)[static_cast<size_t>(i)] : i); };
    const SheetEnd end = CutSheet(document, *picture, cut);
    if (end.out_of_memory) {
        WarnOutOfMemory();
        return true;
    }
    if (end.inserted > 0) document.SetModified(true);
    return end.inserted == cut.count;
}

}  // namespace kirto
