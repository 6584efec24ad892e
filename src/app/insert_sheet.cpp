#include "app/insert_sheet.h"

#include <algorithm>
#include <filesystem>

#include "animation/pauses.h"
#include "app/save_animation.h"
#include "base/core_text.h"
#include "effects/cut_sheet.h"
#include "kit/alert.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr int64 kMostBytes = 1 << 24;  // of a text

SheetTile TileOf(const SheetFrame& frame, double pauses_per_second) {
    SheetTile tile;
    tile.name = frame.name;
    tile.left = frame.left;
    tile.top = frame.top;
    tile.width = frame.width;
    tile.height = frame.height;
    tile.x_offset = frame.x_offset;
    tile.y_offset = frame.y_offset;
    tile.whole_width = frame.whole_width;
    tile.whole_height = frame.whole_height;
    if (frame.milliseconds)
        tile.pause = *frame.milliseconds * pauses_per_second / kMillisecondsPerSecond;
    return tile;
}

}  // namespace

bool IsSheetDescription(const entry_ref& ref) {
    return ref.Leaf().ends_with(".json");
}

std::optional<SheetDescription> ReadSheetText(const entry_ref& ref) {
    BFile file(ref.path, B_READ_ONLY);
    if (file.InitCheck() != B_OK || file.Size() > kMostBytes) return std::nullopt;
    std::string text(static_cast<size_t>(file.Size()), '\0');
    if (!file.ReadExactly(text.data(), text.size())) return std::nullopt;
    return ReadSheetDescription(text);
}

// Beside the text, whatever path it has: it is not to name files of anywhere else.
entry_ref PictureOfSheet(const entry_ref& ref, const SheetDescription& description) {
    const std::filesystem::path named = std::filesystem::path(description.image).filename();
    const std::string same = std::filesystem::path(ref.Leaf()).replace_extension(".png").string();
    return entry_ref(PathIn(ref.Directory(), named.empty() ? same : named.string()));
}

bool InsertSheet(AnimationDocument& document, const entry_ref& ref, BTranslatorRoster& roster) {
    const std::optional<SheetDescription> description = ReadSheetText(ref);
    if (!description) {
        Warn(CoreText::With(
            CoreText::tr("This file can't be inserted because it does not describe a sheet: %1"),
            {ref.Leaf()}));
        return true;
    }
    const auto sheet = ReadSheet(document, PictureOfSheet(ref, *description), roster);
    if (!sheet) return !document.StopRequested();
    const auto& frames = description->frames;
    if (!std::all_of(frames.begin(), frames.end(), [&](const SheetFrame& frame) {
            return frame.LiesOn(sheet->Width(), sheet->Height());
        })) {
        Warn(CoreText::With(
            CoreText::tr("This file can't be inserted because a frame is not on the sheet: %1"),
            {ref.Leaf()}));
        return true;
    }
    const double pauses = PauseUnitsPerSecond(document.prefs.global_pauseinseconds);
    SheetCut cut;
    cut.count = static_cast<int32>(frames.size());
    cut.tile = [&](int32 i) { return TileOf(frames[static_cast<size_t>(i)], pauses); };
    const SheetEnd end = CutSheet(document, *sheet, cut);
    if (end.out_of_memory) WarnOutOfMemory();
    if (end.inserted > 0) document.SetModified(true);
    return end.out_of_memory || end.inserted == cut.count;
}

}  // namespace kirto
