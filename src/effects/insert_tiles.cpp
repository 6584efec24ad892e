#include "effects/insert_tiles.h"

#include <memory>
#include <optional>

#include "base/text.h"
#include "kit/alert.h"
#include "kit/picture_files.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

constexpr const char* kIllegalGrid =
    "This frame can't be inserted because the number of rows or columns is illegal.";

// The file's picture, or null: because the work was stopped, or after telling the user why.
std::shared_ptr<BBitmap> ReadPicture(AnimationDocument& document, const entry_ref& ref,
                                     BTranslatorRoster& roster) {
    std::shared_ptr<BBitmap> picture;
    const status_t status =
        ReadPicture(ref.path, roster, document.pixel_budget, &document.work, &picture);
    if (status == B_CANCELED) return nullptr;
    if (status == B_NO_MEMORY) {
        WarnOutOfMemory();
        return nullptr;
    }
    if (status != B_OK) {
        Warn("This file can't be inserted because this file type is unsupported: " + ref.Leaf());
        return nullptr;
    }
    if (!Is32Bit(picture->ColorSpace())) {
        Warn("This file can't be inserted because the color space is unsupported.");
        return nullptr;
    }
    return picture;
}

struct TilePlace {
    int32 row = 0;
    int32 column = 0;
};

TilePlace PlaceOf(int32 tile, const TileGrid& grid) {
    if (grid.column_by_column) return {tile % grid.rows, tile / grid.rows};
    return {tile / grid.columns, tile % grid.columns};
}

// A rectangle of the picture from that row and column on, or null when memory is short.
std::shared_ptr<const Picture> CopyTile(const BBitmap& picture, const TilePlace& corner,
                                        int32 width, int32 height,
                                        std::shared_ptr<PixelBudget> budget) {
    PictureBuilder builder(width, height, picture.ColorSpace(), std::move(budget));
    const size_t offset = static_cast<size_t>(corner.column) * 4;
    for (int32 y = 0; y < height; ++y) {
        if (!builder.AddRow(picture.Row(corner.row + y) + offset)) return nullptr;
    }
    return builder.Take();
}

// A frame of one tile, or none when memory is short.
std::optional<Frame> MakeTile(const BBitmap& picture, int32 tile, const TileGrid& grid,
                              std::shared_ptr<PixelBudget> budget, const Work& work) {
    const std::shared_ptr<Palette> palette = SharePalette();
    if (!palette) return std::nullopt;
    Frame frame(Format("tiled%04d", tile), picture.Width() / grid.columns,
                picture.Height() / grid.rows);
    const TilePlace place = PlaceOf(tile, grid);
    frame.bitmap = CopyTile(picture, {place.row * frame.height, place.column * frame.width},
                            frame.width, frame.height, std::move(budget));
    if (!frame.bitmap) return std::nullopt;
    palette->Set(frame.bitmap.get(), &work);
    frame.palette = palette;
    return frame;
}

}  // namespace

bool InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster) {
    if (grid.rows <= 0 || grid.columns <= 0) {
        Warn(kIllegalGrid);
        return true;
    }
    const int32 first = document.Selected() + 1;
    int32 position = first;
    if (!ref) return true;
    const std::shared_ptr<BBitmap> picture = ReadPicture(document, *ref, roster);
    if (!picture) return !document.StopRequested();
    const int64 tiles = int64{grid.rows} * grid.columns;
    if (grid.rows > picture->Height() || grid.columns > picture->Width() || tiles > INT32_MAX) {
        Warn(kIllegalGrid);
        return true;
    }
    const int32 count = static_cast<int32>(tiles);
    for (int32 tile = 0; tile < count && !document.StopRequested(); ++tile) {
        document.PostStatus(Format("Status: loading tile %d of %d...", tile + 1, count));
        document.work.Report(tile, count);
        auto frame = MakeTile(*picture, tile, grid, document.pixel_budget, document.work);
        if (document.StopRequested()) break;
        if (!frame) {
            WarnOutOfMemory();
            return true;
        }
        const int32 width = frame->width;
        const int32 height = frame->height;
        document.InsertFrame(position, std::move(*frame));
        if (position == 0 && document.prefs.global_setdimensions) {
            document.Change([width, height](Animation& animation) {
                animation.width = width;
                animation.height = height;
            });
        }
        ++position;
    }
    const bool complete = position - first == count;
    if (complete || position > first) document.SetModified(true);
    return complete;
}

}  // namespace kirto
