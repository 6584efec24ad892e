#include "app/sheet_preview.h"

#include <algorithm>

#include "app/insert_sheet.h"
#include "base/text.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr uint64 kMostPictureBytes = uint64{512} << 20;  // of a picture
constexpr int64 kMostTiles = 1 << 14;                    // that are shown

// "1 frame", "2 frames".
std::string Counted(int64 count, const char* noun) {
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string SizeText(const BBitmap& picture) {
    return Format("%d × %d pixels", picture.Width(), picture.Height());
}

SheetCutting DescribedCutting(const BBitmap& picture, const SheetDescription& description) {
    SheetCutting cutting;
    for (const SheetFrame& frame : description.frames) {
        if (int64{frame.left} + frame.width > picture.Width() ||
            int64{frame.top} + frame.height > picture.Height()) {
            return {{}, SizeText(picture) + ": a frame of the text is not on the picture."};
        }
        cutting.tiles.push_back({{frame.left, frame.top, frame.width, frame.height}, false});
    }
    const auto count = static_cast<int64>(cutting.tiles.size());
    if (count > kMostTiles) cutting.tiles.clear();
    cutting.text = SizeText(picture) + ": " + Counted(count, "frame") + " as the text says.";
    return cutting;
}

void MarkEmptyTiles(const BBitmap& picture, SheetCutting* cutting) {
    int64 frames = 0;
    for (PreviewedTile& tile : cutting->tiles) {
        tile.skipped = IsEmptyTile(picture, tile.place);
        if (!tile.skipped) ++frames;
    }
    cutting->text += ", " + Counted(frames, "frame") + " without the empty ones";
}

}  // namespace

std::optional<PreviewedSheet> ReadSheetToShow(const entry_ref& ref, BTranslatorRoster& roster,
                                              const std::function<bool()>& given_up,
                                              std::string* text) {
    text->clear();
    PreviewedSheet sheet;
    std::string path = ref.path;
    if (IsSheetDescription(ref)) {
        sheet.description = ReadSheetText(ref);
        if (!sheet.description) return std::nullopt;
        path = PictureOfSheet(ref, *sheet.description).path;
    }
    BFile file(path, B_READ_ONLY);
    if (file.InitCheck() != B_OK) return std::nullopt;
    std::shared_ptr<BBitmap> picture;
    const status_t status = roster.TranslateUnless(
        given_up, file, std::make_shared<PixelBudget>(kMostPictureBytes), &picture);
    if (status == B_NO_MEMORY) *text = "This image is too large to be shown here.";
    if (status != B_OK || !Is32Bit(picture->ColorSpace()) || picture->Width() == 0)
        return std::nullopt;
    sheet.picture = std::move(picture);
    return sheet;
}

SheetCutting CuttingOf(const PreviewedSheet& sheet, const TileGrid& grid) {
    const BBitmap& picture = *sheet.picture;
    if (sheet.description) return DescribedCutting(picture, *sheet.description);
    if (!grid.IsSound()) return {{}, SizeText(picture) + ": rows or columns are missing."};
    const TileLayout layout(picture.Width(), picture.Height(), grid);
    const int64 count = layout.Count();
    if (count == 0) return {{}, SizeText(picture) + ": no tile has room."};
    const TilePlace first = layout.PlaceOf(0);
    SheetCutting cutting;
    cutting.text = SizeText(picture) + ": " + Counted(layout.Rows(), "row") + " and " +
                   Counted(layout.Columns(), "column") +
                   Format(" of %d × %d pixels", first.width, first.height);
    if (count <= kMostTiles) {
        for (int32 i = 0; i < count; ++i)
            cutting.tiles.push_back({layout.PlaceOf(i), false});
        if (grid.skip_empty) MarkEmptyTiles(picture, &cutting);
    }
    cutting.text += '.';
    return cutting;
}

}  // namespace kirto
