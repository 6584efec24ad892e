// Where the tiles of a grid lie on a picture.
#pragma once

#include "kit/bitmap.h"

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

    // Whether all numbers are such as described, with a size or rows and columns.
    bool IsSound() const;
};

// A part of a picture, all of it on the picture; pixels.
struct TilePlace {
    int32 left = 0;
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
};

// The tiles of a sound grid, rows x columns of equal size; what is left over at the right and the
// bottom belongs to no tile.
class TileLayout {
  public:
    // width, height: the picture's, above 0.
    TileLayout(int32 width, int32 height, const TileGrid& grid);

    int64 Rows() const { return down_.count; }
    int64 Columns() const { return across_.count; }
    // 0 where there is no room for them.
    int64 Count() const { return across_.count * down_.count; }
    // In the order of the grid. number: 0 to Count() - 1, which is within int32.
    TilePlace PlaceOf(int32 number) const;

  private:
    // The tiles along one side of the picture.
    struct Line {
        int64 count = 0;  // 0: the picture has no room for them
        int64 size = 0;   // of each, pixels
        int64 first = 0;  // where the first one begins
        int64 step = 0;   // from one to the next

        int32 Start(int32 i) const { return static_cast<int32>(first + i * step); }
    };

    static Line LineOf(int64 side, int64 count, int64 size, const TileGrid& grid);

    const bool column_by_column_;
    const Line across_;
    const Line down_;
};

// Whether that part of a 32-bit picture is transparent everywhere.
bool IsEmptyTile(const BBitmap& picture, const TilePlace& place);

}  // namespace kirto
