#include "formats/recovery/recovery_file_writer.h"

#include <new>

#include "base/byte_writer.h"

namespace kirto {

namespace {

uint8 Flags(bool first, bool second) {
    return static_cast<uint8>((first ? 1 : 0) | (second ? 2 : 0));
}

void PutText(ByteWriter& fields, const std::string& text) {
    fields.U16(static_cast<uint16>(text.size()));
    fields.Text(text);
}

}  // namespace

RecoveryFileWriter::RecoveryFileWriter(BFile& file, const DocumentState& state, int64 written)
    : file_(file), blocks_(file) {
    try {
        WriteAll(state, written);
    } catch (const std::bad_alloc&) {
        Fail(B_NO_MEMORY);
    }
}

bool RecoveryFileWriter::Fail(status_t status) {
    if (status_ == B_OK) status_ = status;
    return false;
}

bool RecoveryFileWriter::WriteAll(const DocumentState& state, int64 written) {
    if (!WriteMagic() || !WriteHead(state, written)) return false;
    if (!WritePalette(*state.animation->palette)) return false;
    for (const FramePointer& frame : state.animation->frames) {
        if (!IsRecoverable(*frame)) return Fail(B_BAD_VALUE);
        if (!WritePalette(*frame->palette) || !WritePicture(*frame->bitmap)) return false;
        if (!WriteFrame(*frame)) return false;
    }
    return true;
}

bool RecoveryFileWriter::WriteMagic() {
    ByteWriter fields;
    fields.Text(kRecoveryMagic);
    fields.U32(kRecoveryVersion);
    file_.Write(fields.Written().data(), fields.Written().size());
    return file_.WriteStatus() == B_OK || Fail(file_.WriteStatus());
}

bool RecoveryFileWriter::WriteHead(const DocumentState& state, int64 written) {
    const Animation& animation = *state.animation;
    if (animation.frames.Size() > kMaxRecoveryFrames || state.file_name.size() > kMaxRecoveryName ||
        state.file_directory.size() > kMaxRecoveryDirectory) {
        return Fail(B_BAD_VALUE);
    }
    ByteWriter fields;
    fields.S64(written);
    fields.U8(Flags(state.modified, false));
    PutText(fields, state.file_name);
    PutText(fields, state.file_directory);
    fields.S32(animation.frames.Size());
    fields.S32(animation.width);
    fields.S32(animation.height);
    fields.S32(animation.loop_count);
    fields.U8(Flags(animation.use_loop, animation.use_pause));
    fields.F64(animation.pause_length);
    fields.S32(animation.selected);
    return WriteBlock(kRecoveryHead, fields);
}

bool RecoveryFileWriter::WritePalette(const Palette& palette) {
    if (!palettes_.emplace(&palette, static_cast<uint32>(palettes_.size())).second) return true;
    if (!IsRecoverable(palette)) return Fail(B_BAD_VALUE);
    ByteWriter fields;
    fields.S32(palette.mode);
    fields.S32(palette.size);
    fields.S32(palette.bits);
    fields.S32(palette.unique_colors);
    fields.S32(palette.background_index);
    fields.S32(palette.transparent_index);
    fields.U8(Flags(palette.use_transparent, palette.dither));
    for (const rgb_color& color : palette.colors) {
        for (const uint8 component : {color.red, color.green, color.blue, color.alpha})
            fields.U8(component);
    }
    return WriteBlock(kRecoveryPalette, fields);
}

bool RecoveryFileWriter::WritePicture(const Picture& picture) {
    if (!pictures_.emplace(&picture, static_cast<uint32>(pictures_.size())).second) return true;
    const std::shared_ptr<const BBitmap> bitmap = picture.ToBitmap();
    if (bitmap->InitCheck() != B_OK) return Fail(B_NO_MEMORY);
    const BRect bounds = bitmap->Bounds();
    ByteWriter fields;
    for (const float edge : {bounds.left, bounds.top, bounds.right, bounds.bottom})
        fields.F32(edge);
    fields.S32(picture.ColorSpace());
    return WriteBlock(kRecoveryPicture, fields, {bitmap->Bits(), bitmap->BitsLength()});
}

bool RecoveryFileWriter::WriteFrame(const Frame& frame) {
    ByteWriter fields;
    fields.U32(palettes_.at(frame.palette.get()));
    fields.U32(pictures_.at(frame.bitmap.get()));
    fields.S32(frame.width);
    fields.S32(frame.height);
    fields.S32(frame.x_offset);
    fields.S32(frame.y_offset);
    fields.U8(Flags(frame.use_pause, frame.local_palette));
    fields.F64(frame.pause_length);
    PutText(fields, frame.name);
    return WriteBlock(kRecoveryFrame, fields);
}

bool RecoveryFileWriter::WriteBlock(uint32 kind, const ByteWriter& fields,
                                    std::span<const uint8> pixels) {
    const status_t status = blocks_.Write(kind, fields.Written(), pixels);
    return status == B_OK || Fail(status);
}

}  // namespace kirto
