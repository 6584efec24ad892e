#include "app/document_edits.h"

#include <algorithm>
#include <optional>

#include "base/core_text.h"
#include "document/command_codes.h"
#include "document/field_table.h"

namespace kirto {

namespace {

struct KindCommand {
    uint32 code;
    int32 kind;
};

// The animation's palette becomes one of these.
constexpr KindCommand kPaletteKinds[] = {
    {kPaletteToWebSafe, kPaletteWebSafe},           {kPaletteToSystem, kPaletteSystem},
    {kPaletteToGreyscale, kPaletteGreyscale},       {kPaletteToFirstFrame, kPaletteFirstFrame},
    {kPaletteToCurrentFrame, kPaletteCurrentFrame}, {kPaletteToFile, kPaletteAwaitingFile},
};

// The current frame's palette becomes one of these, or, with the kind "optimal", what fits its
// picture.
constexpr KindCommand kFramePaletteKinds[] = {
    {kFrameWebSafe, kPaletteWebSafe},
    {kFrameSystem, kPaletteSystem},
    {kFrameGreyscale, kPaletteGreyscale},
    {kFrameOptimal, kPaletteOptimal},
    {kFramePaletteToFile, kPaletteAwaitingFile},
};

template <typename Table>
std::optional<int32> KindOf(const Table& table, uint32 code) {
    const auto* found = std::find_if(std::begin(table), std::end(table),
                                     [code](const KindCommand& row) { return row.code == code; });
    if (found == std::end(table)) return std::nullopt;
    return found->kind;
}

void SetKind(Animation& animation, int32 kind) {
    EditPalette(animation, [kind](Palette& palette) { palette.Set(kind); });
}

bool SetFrameKind(Animation& animation, int32 kind) {
    if (!animation.CurrentFrame()) return false;
    for (const int32 i : animation.Selection().Positions()) {
        EditFramePalette(animation, i, [&](Palette& palette) {
            if (kind == kPaletteOptimal) {
                palette.Set(animation.frames.At(i)->bitmap.get());
            } else {
                palette.Set(kind);
            }
        });
    }
    return true;
}

}  // namespace

const char* EditName(uint32 code) {
    if (const Field* field = FieldOf(code)) return field->step;
    if (KindOf(kPaletteKinds, code)) return CoreText::Later("Change Palette");
    return KindOf(kFramePaletteKinds, code) ? CoreText::Later("Change Frame Palette") : nullptr;
}

bool ApplyEdit(AnimationDocument& document, const BMessage& message) {
    const Field* field = FieldOf(message.what);
    const auto kind = KindOf(kPaletteKinds, message.what);
    const auto frame_kind = KindOf(kFramePaletteKinds, message.what);
    if (!field && !kind && !frame_kind) return false;

    Animation next = *document.Current();
    bool changed = true;
    if (field) {
        changed = field->Set(next, message);
    } else if (kind) {
        SetKind(next, *kind);
    } else {
        changed = SetFrameKind(next, *frame_kind);
    }
    if (changed) document.CommitModified(std::move(next));
    return true;
}

}  // namespace kirto
