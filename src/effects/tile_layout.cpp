#include "effects/tile_layout.h"

#include <algorithm>

namespace kirto {

bool TileGrid::IsSound() const {
    if (margin < 0 || spacing < 0 || tile_width < 0 || tile_height < 0) return false;
    return (tile_width > 0 && tile_height > 0) || (rows > 0 && columns > 0);
}

TileLayout::TileLayout(int32 width, int32 height, const TileGrid& grid)
    : column_by_column_(grid.column_by_column),
      across_(LineOf(width, grid.columns, grid.tile_width, grid)),
      down_(LineOf(height, grid.rows, grid.tile_height, grid)) {}

// count, size: as far as they are given, else 0.
TileLayout::Line TileLayout::LineOf(int64 side, int64 count, int64 size, const TileGrid& grid) {
    Line line;
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

TilePlace TileLayout::PlaceOf(int32 number) const {
    const auto rows = static_cast<int32>(down_.count);
    const auto columns = static_cast<int32>(across_.count);
    const int32 row = column_by_column_ ? number % rows : number / columns;
    const int32 column = column_by_column_ ? number / rows : number % columns;
    return {across_.Start(column), down_.Start(row), static_cast<int32>(across_.size),
            static_cast<int32>(down_.size)};
}

bool IsEmptyTile(const BBitmap& picture, const TilePlace& place) {
    const size_t alpha = IsBigEndian(picture.ColorSpace()) ? 0 : 3;
    for (int32 y = place.top; y < place.top + place.height; ++y) {
        const uint8* row = picture.Row(y) + alpha;
        for (int32 x = place.left; x < place.left + place.width; ++x)
            if (row[static_cast<size_t>(x) * 4] != 0) return false;
    }
    return true;
}

}  // namespace kirto
