// The part of the application object that reads and writes sheets.
#include <string>

#include "app/insert_sheet.h"
#include "app/kirto.h"
#include "app/save_animation.h"
#include "app/sequence_save.h"
#include "app/sheet_save.h"
#include "base/core_text.h"
#include "base/number.h"
#include "effects/insert_tiles.h"
#include "kit/alert.h"

namespace {

// What is in none of the panel's fields. Numbers out of their bounds are told of as a grid that
// can't be.
void TakeTileFields(const BMessage& message, kirto::TileGrid* grid) {
    message.FindInt32("tile_width", &grid->tile_width);
    message.FindInt32("tile_height", &grid->tile_height);
    message.FindInt32("margin", &grid->margin);
    message.FindInt32("spacing", &grid->spacing);
    message.FindBool("skip_empty", &grid->skip_empty);
}

}  // namespace

void Kirto::InsertTiledFrame(BMessage* message) {
    const kirto::FilePanel* panel = GetInsertTiledFilePanel();
    kirto::TileGrid grid;
    grid.rows = kirto::LeadingInteger(panel->RowsText());
    grid.columns = kirto::LeadingInteger(panel->ColumnsText());
    grid.column_by_column = panel->ColumnByColumn();
    TakeTileFields(*message, &grid);
    entry_ref ref;
    const bool has_ref = message->FindRef("refs", &ref) == B_OK;
    const int32 before = FrameCount();
    const bool complete = has_ref && kirto::IsSheetDescription(ref)
                              ? kirto::InsertSheet(*this, ref, roster_)
                              : kirto::InsertTiles(*this, has_ref ? &ref : nullptr, grid, roster_);
    if (!complete) SayCanceled(before);
}

void Kirto::SaveSheet(BMessage* message) {
    int64 translator = 0;
    entry_ref directory;
    std::string name;
    kirto::SheetSave::Layout layout;
    if (message->FindInt64("translator_id", &translator) != B_OK ||
        message->FindRef("directory", &directory) != B_OK ||
        message->FindString("name", &name) != B_OK) {
        return;
    }
    message->FindInt32("columns", &layout.columns);
    message->FindInt32("padding", &layout.padding);
    message->FindBool("power_of_two", &layout.power_of_two);
    if (layout.columns < 0 || layout.padding < 0) return;
    const auto id = static_cast<translator_id>(translator);
    const uint32 format = FileFormat(id);
    if (format == 0) return kirto::Warn(kirto::kInvalidTranslatorText);
    const auto animation = Current();
    const kirto::FrameSet frames = animation->several.Empty()
                                       ? kirto::FrameSet::AllOf(animation->frames.Size())
                                       : animation->several;
    kirto::SheetSave save(*this, roster_, {id, format, translator_settings[id]}, frames, layout);
    if (save.Save(kirto::PathIn(directory.path, name)) == B_CANCELED)
        last_word_ = CoreText::tr("saving was canceled");
}
