#include "app/document_edits.h"

#include "document/command_codes.h"
#include "document/document_scope.h"

namespace kirto {

namespace {

bool Find(const BMessage& message, int32* value) {
    return message.FindInt32("value", value) == B_OK;
}

bool Find(const BMessage& message, double* value) {
    return message.FindDouble("value", value) == B_OK;
}

bool Find(const BMessage& message, bool* value) {
    return message.FindBool("value", value) == B_OK;
}

// Each takes a field of its record from the message; false when the message has none.
using DocumentEdit = bool (*)(AnimationDocument& document, const BMessage& message);
using PaletteEdit = bool (*)(Palette& palette, const BMessage& message);
using FrameEdit = bool (*)(Frame& frame, const BMessage& message);

template <auto Member>
bool SetField(AnimationDocument& document, const BMessage& message) {
    return Find(message, &(document.*Member));
}

template <auto Member>
bool SetPaletteField(Palette& palette, const BMessage& message) {
    return Find(message, &(palette.*Member));
}

template <int32 Kind>
bool SetKind(Palette& palette, const BMessage&) {
    palette.Set(Kind);
    return true;
}

template <auto Member>
bool SetFrameField(Frame& frame, const BMessage& message) {
    return Find(message, &(frame.*Member));
}

bool AwaitFramePalette(Frame& frame, const BMessage&) {
    frame.palette->Set(kPaletteAwaitingFile);
    return true;
}

template <typename Edit>
struct EditOf {
    uint32 code;
    Edit apply;
};

constexpr EditOf<DocumentEdit> kDocumentEdits[] = {
    {kSetWidth, SetField<&AnimationDocument::global_width>},
    {kSetHeight, SetField<&AnimationDocument::global_height>},
    {kUsePause, SetField<&AnimationDocument::use_pause_global>},
    {kSetPauseLength, SetField<&AnimationDocument::pause_length_global>},
    {kUseLoop, SetField<&AnimationDocument::use_loop>},
    {kSetLoopCount, SetField<&AnimationDocument::loop_count>},
};

constexpr EditOf<PaletteEdit> kPaletteEdits[] = {
    {kPaletteToWebSafe, SetKind<kPaletteWebSafe>},
    {kPaletteToSystem, SetKind<kPaletteSystem>},
    {kPaletteToGreyscale, SetKind<kPaletteGreyscale>},
    {kPaletteToFirstFrame, SetKind<kPaletteFirstFrame>},
    {kPaletteToCurrentFrame, SetKind<kPaletteCurrentFrame>},
    {kPaletteToFile, SetKind<kPaletteAwaitingFile>},
    {kSetBackgroundIndex, SetPaletteField<&Palette::background_index>},
    {kUseTransparent, SetPaletteField<&Palette::use_transparent>},
    {kSetTransparentIndex, SetPaletteField<&Palette::transparent_index>},
    {kSetDither, SetPaletteField<&Palette::dither>},
};

constexpr EditOf<FrameEdit> kFrameEdits[] = {
    {kFrameSetXOffset, SetFrameField<&Frame::x_offset>},
    {kFrameSetYOffset, SetFrameField<&Frame::y_offset>},
    {kFrameUsePause, SetFrameField<&Frame::use_pause>},
    {kFrameSetPauseLength, SetFrameField<&Frame::pause_length>},
    {kFrameUsePalette, SetFrameField<&Frame::local_palette>},
    {kFramePaletteToFile, AwaitFramePalette},
};

template <typename Table>
auto EditFor(const Table& table, uint32 code) -> decltype(table[0].apply) {
    for (const auto& edit : table) {
        if (edit.code == code) return edit.apply;
    }
    return nullptr;
}

}  // namespace

bool IsEdit(uint32 code) {
    return EditFor(kDocumentEdits, code) || EditFor(kPaletteEdits, code) ||
           EditFor(kFrameEdits, code);
}

bool ApplyEdit(AnimationDocument& document, const BMessage& message) {
    const DocumentEdit document_edit = EditFor(kDocumentEdits, message.what);
    const PaletteEdit palette_edit = EditFor(kPaletteEdits, message.what);
    const FrameEdit frame_edit = EditFor(kFrameEdits, message.what);
    if (!document_edit && !palette_edit && !frame_edit) return false;

    const WriterScope writer(document);
    Frame* frame = document.CurrentFrame();
    const bool changed = (document_edit && document_edit(document, message)) ||
                         (palette_edit && palette_edit(*document.global_palette, message)) ||
                         (frame_edit && frame && frame_edit(*frame, message));
    if (changed) document.modified = true;
    return true;
}

}  // namespace kirto
