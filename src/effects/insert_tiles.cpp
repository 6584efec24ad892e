#include "effects/insert_tiles.h"

#include <memory>
#include <optional>
#include <utility>

#include "base/text.h"
#include "effects/make_pictures.h"
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

// One tile, or null when memory is short.
std::shared_ptr<const Picture> CutTile(const BBitmap& picture, int32 tile, const TileGrid& grid,
                                       std::shared_ptr<PixelBudget> budget) {
    const int32 width = picture.Width() / grid.columns;
    const int32 height = picture.Height() / grid.rows;
    const TilePlace place = PlaceOf(tile, grid);
    return CopyTile(picture, {place.row * height, place.column * width}, width, height,
                    std::move(budget));
}

// Makes the frames of a picture's tiles and inserts them.
class TileRun {
  public:
    TileRun(AnimationDocument& document, const BBitmap& picture, const TileGrid& grid)
        : document_(document), picture_(picture), grid_(grid), count_(grid.rows * grid.columns) {}

    // Returns how many frames were inserted, from the position on.
    int32 InsertAt(int32 position);
    bool OutOfMemory() const { return out_of_memory_; }

  private:
    bool Begin(int32 tile);
    bool Insert(int32 tile, std::optional<MadePicture> made);

    AnimationDocument& document_;
    const BBitmap& picture_;
    const TileGrid grid_;
    const int32 count_;
    int32 position_ = 0;  // of the next frame
    bool out_of_memory_ = false;
    std::shared_ptr<Palette> palette_;  // of the tile whose turn it is
};

int32 TileRun::InsertAt(int32 position) {
    position_ = position;
    PictureSteps steps;
    steps.begin = [this](int32 tile) { return Begin(tile); };
    steps.make = [this](int32 tile) {
        return CutTile(picture_, tile, grid_, document_.pixel_budget);
    };
    steps.take = [this](int32 tile, std::optional<MadePicture> made) {
        return Insert(tile, std::move(made));
    };
    return MakePictures(count_, steps, document_.work);
}

bool TileRun::Begin(int32 tile) {
    if (document_.StopRequested()) return false;
    document_.PostStatus(Format("Status: loading tile %d of %d...", tile + 1, count_));
    document_.work.Report(tile, count_);
    palette_ = SharePalette();
    out_of_memory_ = !palette_ && !document_.StopRequested();
    return palette_ != nullptr;
}

bool TileRun::Insert(int32 tile, std::optional<MadePicture> made) {
    if (made) Palette::TellOfFailure(made->palette_status);
    if (document_.StopRequested()) return false;
    out_of_memory_ = !made;
    if (out_of_memory_) return false;
    const int32 width = made->bitmap->Width();
    const int32 height = made->bitmap->Height();
    Frame frame(Format("tiled%04d", tile), width, height);
    *palette_ = made->palette;
    frame.palette = std::move(palette_);
    frame.bitmap = std::move(made->bitmap);
    document_.InsertFrame(position_, std::move(frame));
    if (position_ == 0 && document_.prefs.global_setdimensions) {
        document_.Change([width, height](Animation& animation) {
            animation.width = width;
            animation.height = height;
        });
    }
    ++position_;
    return true;
}

}  // namespace

bool InsertTiles(AnimationDocument& document, const entry_ref* ref, const TileGrid& grid,
                 BTranslatorRoster& roster) {
    if (grid.rows <= 0 || grid.columns <= 0) {
        Warn(kIllegalGrid);
        return true;
    }
    if (!ref) return true;
    const std::shared_ptr<BBitmap> picture = ReadPicture(document, *ref, roster);
    if (!picture) return !document.StopRequested();
    const int64 tiles = int64{grid.rows} * grid.columns;
    if (grid.rows > picture->Height() || grid.columns > picture->Width() || tiles > INT32_MAX) {
        Warn(kIllegalGrid);
        return true;
    }
    TileRun run(document, *picture, grid);
    const int32 inserted = run.InsertAt(document.Selected() + 1);
    if (run.OutOfMemory()) {
        WarnOutOfMemory();
        return true;
    }
    const bool complete = inserted == tiles;
    if (complete || inserted > 0) document.SetModified(true);
    return complete;
}

}  // namespace kirto
