#include "effects/insert_tiles.h"

#include <cstring>
#include <memory>
#include <new>

#include "document/document_scope.h"
#include "platform/alert.h"
#include "platform/text.h"

namespace kirto {

namespace {

constexpr const char* kIllegalGrid =
    "This frame can't be inserted because the number of rows or columns is illegal.";

// The file's picture, or null after telling the user why there is none.
std::shared_ptr<BBitmap> ReadPicture(AnimationDocument& document, const entry_ref& ref,
                                     BTranslatorRoster& roster) {
    BFile file(ref.path, B_READ_ONLY);
    std::shared_ptr<BBitmap> picture;
    const status_t status = roster.Translate(file, document.pixel_budget, &picture);
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

// A frame of one tile, or null when memory is short.
std::unique_ptr<Frame> MakeTile(AnimationDocument& document, const BBitmap& picture, int32 tile,
                                const TileGrid& grid, int32 position) {
    const int32 width = picture.Width() / grid.columns;
    const int32 height = picture.Height() / grid.rows;
    if (AllocationShouldFail()) return nullptr;
    std::unique_ptr<Frame> frame(new (std::nothrow)
                                     Frame(Format("tiled%04d", tile), width, height, position));
    if (!frame || frame->init_failed) return nullptr;
    frame->bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height), picture.ColorSpace(),
                                              document.pixel_budget);
    if (frame->bitmap->InitCheck() != B_OK) return nullptr;
    const TilePlace place = PlaceOf(tile, grid);
    CopyTile(picture, place.row, place.column, frame->bitmap.get());
    frame->palette->Set(frame->bitmap.get());
    return frame;
}

}  // namespace

void CopyTile(const BBitmap& picture, int32 row, int32 column, BBitmap* tile) {
    const size_t offset = static_cast<size_t>(column) * tile->BytesPerRow();
    for (int32 y = 0; y < tile->Height(); ++y) {
        std::memcpy(tile->Row(y), picture.Row(row * tile->Height() + y) + offset,
                    tile->BytesPerRow());
    }
}

void InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster) {
    if (grid.rows <= 0 || grid.columns <= 0) {
        Warn(kIllegalGrid);
        return;
    }
    int32 position = document.selected >= 0 ? document.selected + 1 : 0;
    if (!ref) return;
    const std::shared_ptr<BBitmap> picture = ReadPicture(document, *ref, roster);
    if (!picture) return;
    const int64 tiles = int64{grid.rows} * grid.columns;
    if (grid.rows > picture->Height() || grid.columns > picture->Width() || tiles > INT32_MAX) {
        Warn(kIllegalGrid);
        return;
    }
    const int32 count = static_cast<int32>(tiles);
    for (int32 tile = 0; tile < count && !document.StopRequested(); ++tile) {
        document.PostStatus(Format("Status: loading tile %d of %d...", tile + 1, count));
        std::unique_ptr<Frame> frame = MakeTile(document, *picture, tile, grid, position);
        if (!frame) {
            WarnOutOfMemory();
            return;
        }
        const int32 width = frame->width;
        const int32 height = frame->height;
        if (document.InsertFrame(frame.get())) static_cast<void>(frame.release());
        if (position == 0 && document.prefs.global_setdimensions) {
            const WriterScope writer(document);
            document.global_width = width;
            document.global_height = height;
        }
        ++position;
    }
    document.SetModified(true);
}

}  // namespace kirto
