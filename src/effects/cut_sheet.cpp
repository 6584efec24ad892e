#include "effects/cut_sheet.h"

#include <utility>

#include "base/core_text.h"
#include "base/text.h"
#include "effects/make_pictures.h"
#include "kit/alert.h"
#include "kit/picture_files.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

// A tile's pixels, or null when memory is short.
std::shared_ptr<const Picture> CopyTile(const BBitmap& sheet, const SheetTile& tile,
                                        std::shared_ptr<PixelBudget> budget) {
    PictureBuilder builder(tile.width, tile.height, sheet.ColorSpace(), std::move(budget));
    const size_t offset = static_cast<size_t>(tile.left) * 4;
    for (int32 y = 0; y < tile.height; ++y) {
        if (!builder.AddRow(sheet.Row(tile.top + y) + offset)) return nullptr;
    }
    return builder.Take();
}

// Makes the frames of a sheet's tiles and inserts them.
class TileRun {
  public:
    TileRun(AnimationDocument& document, const BBitmap& sheet, const SheetCut& cut)
        : document_(document), sheet_(sheet), cut_(cut) {}

    // From the position on.
    SheetEnd InsertAt(int32 position);

  private:
    bool Begin(int32 i);
    bool Insert(int32 i, std::optional<MadePicture> made);

    AnimationDocument& document_;
    const BBitmap& sheet_;
    const SheetCut& cut_;
    int32 position_ = 0;  // of the next frame
    bool out_of_memory_ = false;
    std::shared_ptr<Palette> palette_;  // of the tile whose turn it is
};

SheetEnd TileRun::InsertAt(int32 position) {
    position_ = position;
    PictureSteps steps;
    steps.begin = [this](int32 i) { return Begin(i); };
    steps.make = [this](int32 i) { return CopyTile(sheet_, cut_.tile(i), document_.pixel_budget); };
    steps.take = [this](int32 i, std::optional<MadePicture> made) {
        return Insert(i, std::move(made));
    };
    const int32 inserted = MakePictures(cut_.count, steps, document_.work);
    return {inserted, out_of_memory_};
}

bool TileRun::Begin(int32 i) {
    if (document_.StopRequested()) return false;
    document_.PostStatus(CoreText::With(CoreText::tr("Status: loading tile %1 of %2..."),
                                        {std::to_string(i + 1), std::to_string(cut_.count)}));
    document_.work.Report(i, cut_.count);
    palette_ = SharePalette();
    out_of_memory_ = !palette_ && !document_.StopRequested();
    return palette_ != nullptr;
}

bool TileRun::Insert(int32 i, std::optional<MadePicture> made) {
    if (made) Palette::TellOfFailure(made->palette_status);
    if (document_.StopRequested()) return false;
    out_of_memory_ = !made;
    if (out_of_memory_) return false;
    const SheetTile tile = cut_.tile(i);
    Frame frame(tile.name, tile.width, tile.height);
    *palette_ = made->palette;
    frame.palette = std::move(palette_);
    frame.bitmap = std::move(made->bitmap);
    frame.x_offset = tile.x_offset;
    frame.y_offset = tile.y_offset;
    frame.use_pause = tile.pause.has_value();
    frame.pause_length = tile.pause.value_or(frame.pause_length);
    document_.InsertFrame(position_, std::move(frame));
    if (position_ == 0 && document_.prefs.global_setdimensions) {
        document_.Change([&tile](Animation& animation) {
            animation.width = tile.whole_width > 0 ? tile.whole_width : tile.width;
            animation.height = tile.whole_height > 0 ? tile.whole_height : tile.height;
        });
    }
    ++position_;
    return true;
}

}  // namespace

std::shared_ptr<BBitmap> ReadSheet(AnimationDocument& document, const entry_ref& ref,
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
        Warn(CoreText::With(
            CoreText::tr("This file can't be inserted because this file type is unsupported: %1"),
            {ref.Leaf()}));
        return nullptr;
    }
    if (!Is32Bit(picture->ColorSpace())) {
        Warn(
            CoreText::Later("This file can't be inserted because the color space is unsupported."));
        return nullptr;
    }
    return picture;
}

SheetEnd CutSheet(AnimationDocument& document, const BBitmap& sheet, const SheetCut& cut) {
    return TileRun(document, sheet, cut).InsertAt(document.Selected() + 1);
}

}  // namespace kirto
