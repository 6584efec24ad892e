#include "app/sheet_preview.h"

#include <algorithm>

#include "app/insert_sheet.h"
#include "base/core_text.h"
#include "base/text.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr uint64 kMostPictureBytes = uint64{512} << 20;  // of a picture
constexpr int64 kMostTiles = 1 << 14;                    // that are shown

// one: for the count 1; other: for all others, with "%1" for it.
std::string Counted(int64 count, const char* one, const char* other) {
    return count == 1 ? CoreText::tr(one)
                      : CoreText::With(CoreText::tr(other), {std::to_string(count)});
}

std::string CountedFrames(int64 count) {
    return Counted(count, CoreText::Later("1 frame"), CoreText::Later("%1 frames"));
}

std::string SizeText(const BBitmap& picture) {
    return CoreText::With(CoreText::tr("%1 × %2 pixels"),
                          {std::to_string(picture.Width()), std::to_string(picture.Height())});
}

SheetCutting DescribedCutting(const BBitmap& picture, const SheetDescription& description) {
    SheetCutting cutting;
    for (const SheetFrame& frame : description.frames) {
        if (int64{frame.left} + frame.width > picture.Width() ||
            int64{frame.top} + frame.height > picture.Height()) {
            return {{},
                    CoreText::With(CoreText::tr("%1: a frame of the text is not on the picture."),
                                   {SizeText(picture)})};
        }
        cutting.tiles.push_back({{frame.left, frame.top, frame.width, frame.height}, false});
    }
    const auto count = static_cast<int64>(cutting.tiles.size());
    if (count > kMostTiles) cutting.tiles.clear();
    cutting.text = CoreText::With(CoreText::tr("%1: %2 as the text says."),
                                  {SizeText(picture), CountedFrames(count)});
    return cutting;
}

void MarkEmptyTiles(const BBitmap& picture, SheetCutting* cutting) {
    int64 frames = 0;
    for (PreviewedTile& tile : cutting->tiles) {
        tile.skipped = IsEmptyTile(picture, tile.place);
        if (!tile.skipped) ++frames;
    }
    cutting->text +=
        CoreText::With(CoreText::tr(", %1 without the empty ones"), {CountedFrames(frames)});
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
    if (status == B_NO_MEMORY) *text = CoreText::tr("This image is too large to be shown here.");
    if (status != B_OK || !Is32Bit(picture->ColorSpace()) || picture->Width() == 0)
        return std::nullopt;
    sheet.picture = std::move(picture);
    return sheet;
}

SheetCutting CuttingOf(const PreviewedSheet& sheet, const TileGrid& grid) {
    const BBitmap& picture = *sheet.picture;
    if (sheet.description) return DescribedCutting(picture, *sheet.description);
    if (!grid.IsSound())
        return {
            {},
            CoreText::With(CoreText::tr("%1: rows or columns are missing."), {SizeText(picture)})};
    const TileLayout layout(picture.Width(), picture.Height(), grid);
    const int64 count = layout.Count();
    if (count == 0)
        return {{}, CoreText::With(CoreText::tr("%1: no tile has room."), {SizeText(picture)})};
    const TilePlace first = layout.PlaceOf(0);
    SheetCutting cutting;
    cutting.text = CoreText::With(
        CoreText::tr("%1: %2 and %3 of %4 × %5 pixels"),
        {SizeText(picture),
         Counted(layout.Rows(), CoreText::Later("1 row"), CoreText::Later("%1 rows")),
         Counted(layout.Columns(), CoreText::Later("1 column"), CoreText::Later("%1 columns")),
         std::to_string(first.width), std::to_string(first.height)});
    if (count <= kMostTiles) {
        for (int32 i = 0; i < count; ++i)
            cutting.tiles.push_back({layout.PlaceOf(i), false});
        if (grid.skip_empty) MarkEmptyTiles(picture, &cutting);
    }
    cutting.text += '.';
    return cutting;
}

}  // namespace kirto
