#include "formats/recovery/recovery_file_reader.h"

#include <algorithm>
#include <array>
#include <new>

#include "base/byte_reader.h"

namespace kirto {

namespace {

// A byte of two flags. False when other bits are set.
bool TakeFlags(ByteReader& fields, bool* first, bool* second) {
    const uint8 flags = fields.U8();
    *first = (flags & 1) != 0;
    *second = (flags & 2) != 0;
    return flags <= 3;
}

std::string TakeText(ByteReader& fields) {
    const size_t length = fields.U16();
    const auto bytes = fields.Bytes(length);
    return {bytes.begin(), bytes.end()};
}

bool TakeColorSpace(ByteReader& fields, color_space* space) {
    const int32 number = fields.S32();
    if (number <= B_NO_COLOR_SPACE || number > B_GRAY1) return false;
    *space = static_cast<color_space>(number);
    return true;
}

// True when a block has been read to its end, and not past it.
bool IsUsedUp(const ByteReader& fields) {
    return !fields.Overrun() && fields.Left() == 0;
}

bool IsWithin(int32 value, int32 first, int32 last) {
    return value >= first && value <= last;
}

}  // namespace

std::optional<RecoveryHead> RecoveryFileReader::ReadHead() {
    try {
        if (ReadMagic() && ReadHeadBlock()) return std::move(document_.head);
    } catch (const std::bad_alloc&) {
        OutOfMemory();
    }
    return std::nullopt;
}

std::optional<RecoveryDocument> RecoveryFileReader::ReadDocument(
    std::shared_ptr<PixelBudget> budget) {
    budget_ = std::move(budget);
    try {
        if (ReadAll()) return std::move(document_);
    } catch (const std::bad_alloc&) {
        OutOfMemory();
    }
    // Gives the budget back what had been read.
    document_ = {};
    pictures_.clear();
    return std::nullopt;
}

bool RecoveryFileReader::ReadAll() {
    if (!ReadMagic() || !ReadHeadBlock() || !blocks_.Open()) return false;
    if (blocks_.Kind() != kRecoveryPalette) return Refuse("the animation has no palette");
    if (!ReadPalette() || !ReadFrames()) return false;
    document_.animation.palette = palettes_.front();
    return blocks_.AtEnd() || Refuse("the file goes on behind its last frame");
}

bool RecoveryFileReader::ReadMagic() {
    if (file_.InitCheck() != B_OK) return blocks_.Fail(B_IO_ERROR, "the file can't be read");
    std::array<uint8, kRecoveryMagic.size() + 4> start;
    if (!file_.ReadExactly(start.data(), start.size())) return Refuse("the file is cut off");
    ByteReader fields(start);
    const auto magic = fields.Bytes(kRecoveryMagic.size());
    if (!std::equal(magic.begin(), magic.end(), kRecoveryMagic.begin())) {
        return Refuse("this is no recovery file");
    }
    return fields.U32() == kRecoveryVersion || Refuse("the file is of another version");
}

bool RecoveryFileReader::ReadHeadBlock() {
    std::vector<uint8> bytes;
    if (!blocks_.Open()) return false;
    if (blocks_.Kind() != kRecoveryHead) return Refuse("the file has no head");
    if (!blocks_.ReadWhole(&bytes)) return false;
    RecoveryHead& head = document_.head;
    Animation& animation = document_.animation;
    ByteReader fields(bytes);
    head.written = fields.S64();
    const uint8 modified = fields.U8();
    head.modified = modified != 0;
    head.file_name = TakeText(fields);
    head.file_directory = TakeText(fields);
    head.frame_count = fields.S32();
    animation.width = fields.S32();
    animation.height = fields.S32();
    animation.loop_count = fields.S32();
    const bool flags = TakeFlags(fields, &animation.use_loop, &animation.use_pause);
    animation.pause_length = fields.F64();
    animation.selected = fields.S32();
    const bool selects_a_frame = head.frame_count <= 0
                                     ? animation.selected == -1
                                     : IsWithin(animation.selected, 0, head.frame_count - 1);
    const bool sound = IsUsedUp(fields) && modified <= 1 && flags && selects_a_frame &&
                       head.file_name.size() <= kMaxRecoveryName &&
                       IsWithin(head.frame_count, 0, kMaxRecoveryFrames);
    return sound || Refuse("the head is damaged");
}

bool RecoveryFileReader::ReadFrames() {
    while (document_.animation.frames.Size() < document_.head.frame_count) {
        if (!blocks_.Open()) return false;
        bool read = false;
        switch (blocks_.Kind()) {
            case kRecoveryPalette:
                read = ReadPalette();
                break;
            case kRecoveryPicture:
                read = ReadPicture();
                break;
            case kRecoveryFrame:
                read = ReadFrame();
                break;
            default:
                read = Refuse("a block is of no known kind");
        }
        if (!read) return false;
    }
    return true;
}

bool RecoveryFileReader::ReadPalette() {
    std::vector<uint8> bytes;
    // Each frame brings at most one, and the animation another.
    if (palettes_.size() > static_cast<size_t>(document_.head.frame_count)) {
        return Refuse("there are more palettes than frames");
    }
    if (!blocks_.ReadWhole(&bytes)) return false;
    ByteReader fields(bytes);
    Palette palette;
    palette.mode = fields.S32();
    palette.size = fields.S32();
    palette.bits = fields.S32();
    palette.unique_colors = fields.S32();
    palette.background_index = fields.S32();
    palette.transparent_index = fields.S32();
    const bool flags = TakeFlags(fields, &palette.use_transparent, &palette.dither);
    for (rgb_color& color : palette.colors) {
        for (uint8* component : {&color.red, &color.green, &color.blue, &color.alpha})
            *component = fields.U8();
    }
    if (!IsUsedUp(fields) || !flags || !IsRecoverable(palette)) {
        return Refuse("a palette is damaged");
    }
    auto shared = SharePalette(palette);
    if (!shared) return OutOfMemory();
    palettes_.push_back(std::move(shared));
    return true;
}

bool RecoveryFileReader::ReadPicture() {
    if (pictures_.size() >= static_cast<size_t>(document_.head.frame_count)) {
        return Refuse("there are more pictures than frames");
    }
    std::array<uint8, kRecoveryPictureHeader> header;
    if (!blocks_.Read(header)) return false;
    ByteReader fields(header);
    BRect bounds;
    for (float* edge : {&bounds.left, &bounds.top, &bounds.right, &bounds.bottom})
        *edge = fields.F32();
    color_space space = B_NO_COLOR_SPACE;
    if (!TakeColorSpace(fields, &space) || !bounds.IsValid() || bounds.PixelWidth() == 0 ||
        bounds.PixelHeight() == 0) {
        return Refuse("a picture is damaged");
    }
    const auto picture = std::make_shared<BBitmap>(bounds, space, budget_);
    if (picture->InitCheck() != B_OK) return OutOfMemory();
    if (blocks_.Left() != picture->BitsLength()) return Refuse("a picture has another size");
    if (!blocks_.Read({picture->Bits(), picture->BitsLength()}) || !blocks_.Close()) return false;
    pictures_.push_back(Picture::Of(picture, budget_));
    return true;
}

bool RecoveryFileReader::ReadFrame() {
    std::vector<uint8> bytes;
    if (!blocks_.ReadWhole(&bytes)) return false;
    ByteReader fields(bytes);
    auto frame = std::make_shared<Frame>();
    const uint32 palette = fields.U32();
    const uint32 picture = fields.U32();
    frame->width = fields.S32();
    frame->height = fields.S32();
    frame->x_offset = fields.S32();
    frame->y_offset = fields.S32();
    const bool flags = TakeFlags(fields, &frame->use_pause, &frame->local_palette);
    frame->pause_length = fields.F64();
    frame->name = TakeText(fields);
    if (!IsUsedUp(fields) || !flags || frame->name.size() > kMaxRecoveryName ||
        palette >= palettes_.size() || picture >= pictures_.size()) {
        return Refuse("a frame is damaged");
    }
    frame->palette = palettes_[palette];
    frame->bitmap = pictures_[picture];
    if (!IsRecoverable(*frame)) return Refuse("a frame does not fit its picture");
    document_.animation.frames.Insert(document_.animation.frames.Size(), std::move(frame));
    return true;
}

}  // namespace kirto
