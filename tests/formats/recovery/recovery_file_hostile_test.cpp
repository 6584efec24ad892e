// Recovery files whose checksums are right and whose contents are not.
#include <gtest/gtest.h>
#include <limits>

#include "base/byte_writer.h"
#include "formats/recovery/recovery_block_writer.h"
#include "formats/recovery/recovery_file_reader.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

// A file of which every number can be chosen; sound as it is.
struct HostileFile {
    std::string magic{kRecoveryMagic};
    uint32 version = kRecoveryVersion;
    int32 frames = 1;
    int32 selected = 0;
    uint8 modified = 1;
    uint8 flags = 0;
    std::string file_name = "name";
    uint16 name_length = 4;
    int32 palette_size = 256;
    int32 palette_bits = 8;
    int32 palettes = 1;
    size_t palette_tail = 0;  // bytes too many
    BRect bounds{0, 0, 1, 0};
    int32 space = B_RGB32;
    size_t pixel_bytes = 8;
    int32 pictures = 1;
    uint32 palette_number = 0;
    uint32 picture_number = 0;
    int32 frame_width = 2;
    int32 frame_height = 1;
    uint32 frame_kind = kRecoveryFrame;
    std::string frame_name = "frame";

    ByteWriter Head() const {
        ByteWriter fields;
        fields.S64(0);
        fields.U8(modified);
        fields.U16(name_length);
        fields.Text(file_name);
        fields.U16(0);
        for (const int32 number : {frames, 2, 1, 0})
            fields.S32(number);
        fields.U8(flags);
        fields.F64(0);
        fields.S32(selected);
        return fields;
    }
    ByteWriter PaletteFields() const {
        ByteWriter fields;
        for (const int32 number : {0, palette_size, palette_bits, 0, 0, 0})
            fields.S32(number);
        fields.U8(flags);
        fields.Bytes(std::vector<uint8>(1024 + palette_tail));
        return fields;
    }
    ByteWriter Picture() const {
        ByteWriter fields;
        for (const float edge : {bounds.left, bounds.top, bounds.right, bounds.bottom})
            fields.F32(edge);
        fields.S32(space);
        fields.Bytes(std::vector<uint8>(pixel_bytes));
        return fields;
    }
    ByteWriter FrameFields() const {
        ByteWriter fields;
        fields.U32(palette_number);
        fields.U32(picture_number);
        for (const int32 number : {frame_width, frame_height, 0, 0})
            fields.S32(number);
        fields.U8(flags);
        fields.F64(0);
        fields.U16(static_cast<uint16>(frame_name.size()));
        fields.Text(frame_name);
        return fields;
    }

    std::vector<uint8> Bytes() const {
        const auto file = BFile::OnMemory();
        ByteWriter start;
        start.Text(magic);
        start.U32(version);
        file->Write(start.Written().data(), start.Written().size());
        RecoveryBlockWriter blocks(*file);
        blocks.Write(kRecoveryHead, Head().Written());
        for (int32 i = 0; i < palettes; ++i)
            blocks.Write(kRecoveryPalette, PaletteFields().Written());
        for (int32 i = 0; i < pictures; ++i)
            blocks.Write(kRecoveryPicture, Picture().Written());
        blocks.Write(frame_kind, FrameFields().Written());
        return file->Memory();
    }

    // Why it is refused, "" where it is not.
    std::string Refusal() const {
        const auto file = BFile::OnMemory(Bytes());
        RecoveryFileReader reader(*file);
        const auto document = reader.ReadDocument(std::make_shared<PixelBudget>(1000000));
        EXPECT_EQ(document.has_value(), reader.Status() == B_OK);
        return reader.Reason();
    }
};

template <typename Value>
std::string RefusalWith(Value HostileFile::*member, Value value) {
    HostileFile file;
    file.*member = std::move(value);
    return file.Refusal();
}

TEST(RecoveryFileReader, AcceptsWhatTheOtherTestsSpoil) {
    EXPECT_EQ(HostileFile().Refusal(), "");
}

TEST(RecoveryFileReader, RefusesWhatIsNoRecoveryFile) {
    EXPECT_EQ(RefusalWith(&HostileFile::magic, std::string("KirtoRcx")),
              "this is no recovery file");
    EXPECT_EQ(RefusalWith(&HostileFile::version, uint32{2}), "the file is of another version");
}

TEST(RecoveryFileReader, RefusesADamagedHead) {
    const std::string refusal = "the head is damaged";
    EXPECT_EQ(RefusalWith(&HostileFile::frames, -1), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::frames, kMaxRecoveryFrames + 1), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::frames, 0), refusal) << "frame 0 is selected";
    EXPECT_EQ(RefusalWith(&HostileFile::selected, -1), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::selected, 1), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::modified, uint8{2}), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::flags, uint8{4}), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::name_length, uint16{3}), refusal);
    EXPECT_EQ(RefusalWith(&HostileFile::name_length, uint16{65535}), refusal);
    HostileFile file;
    file.file_name = std::string(256, 'n');
    file.name_length = 256;
    EXPECT_EQ(file.Refusal(), refusal);
}

TEST(RecoveryFileReader, RefusesADamagedPalette) {
    EXPECT_EQ(RefusalWith(&HostileFile::palette_size, -1), "a palette is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::palette_size, 257), "a palette is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::palette_bits, 0), "a palette is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::palette_bits, 9), "a palette is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::palette_tail, size_t{1}), "a palette is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::palette_tail, kMaxRecoveryBlock), "a block is too long");
    EXPECT_EQ(RefusalWith(&HostileFile::palettes, 0), "the animation has no palette");
}

TEST(RecoveryFileReader, RefusesADamagedPicture) {
    constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(RefusalWith(&HostileFile::bounds, BRect(0, 0, kNone, 0)), "a picture is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::bounds, BRect(0, 0, -2, 0)), "a picture is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::bounds, BRect(0, 0, 3e9f, 0)), "a picture is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::bounds, BRect(0, 0, 2, 0)), "a picture has another size");
    EXPECT_EQ(RefusalWith(&HostileFile::bounds, BRect(0, 0, 1000, 1000)), "out of memory");
    EXPECT_EQ(RefusalWith(&HostileFile::space, 0), "a picture is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::space, 10), "a picture is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::pixel_bytes, size_t{7}), "a picture has another size");
    EXPECT_EQ(RefusalWith(&HostileFile::pixel_bytes, size_t{9}), "a picture has another size");
}

TEST(RecoveryFileReader, RefusesADamagedFrame) {
    EXPECT_EQ(RefusalWith(&HostileFile::palette_number, uint32{1}), "a frame is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::picture_number, uint32{1}), "a frame is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::picture_number, std::numeric_limits<uint32>::max()),
              "a frame is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::pictures, 0), "a frame is damaged");
    EXPECT_EQ(RefusalWith(&HostileFile::frame_width, 0), "a frame does not fit its picture");
    EXPECT_EQ(RefusalWith(&HostileFile::frame_width, 3), "a frame does not fit its picture");
    EXPECT_EQ(RefusalWith(&HostileFile::frame_height, -1), "a frame does not fit its picture");
    EXPECT_EQ(RefusalWith(&HostileFile::frame_height, 2), "a frame does not fit its picture");
    EXPECT_EQ(RefusalWith(&HostileFile::frame_name, std::string(256, 'n')), "a frame is damaged");
}

TEST(RecoveryFileReader, RefusesMoreBlocksThanFramesCanUse) {
    EXPECT_EQ(RefusalWith(&HostileFile::palettes, 2), "");
    EXPECT_EQ(RefusalWith(&HostileFile::palettes, 3), "there are more palettes than frames");
    EXPECT_EQ(RefusalWith(&HostileFile::pictures, 2), "there are more pictures than frames");
}

TEST(RecoveryFileReader, RefusesBlocksOfOtherKinds) {
    EXPECT_EQ(RefusalWith(&HostileFile::frame_kind, uint32{5}), "a block is of no known kind");
    EXPECT_EQ(RefusalWith(&HostileFile::frame_kind, kRecoveryHead), "a block is of no known kind");
}

TEST(RecoveryFileReader, ABlockThatSaysItIsLongerThanTheFileTakesNoMemory) {
    std::vector<uint8> bytes = HostileFile().Bytes();
    const size_t length_place = kRecoveryMagic.size() + 4 + 4;
    for (const size_t place : {length_place, length_place + 8}) {
        std::vector<uint8> spoilt = bytes;
        for (size_t i = 0; i < 8; ++i)
            spoilt[place + i] = 0xff;
        const auto file = BFile::OnMemory(spoilt);
        RecoveryFileReader reader(*file);
        EXPECT_FALSE(reader.ReadHead());
        EXPECT_EQ(reader.Status(), B_BAD_DATA);
    }
}

}  // namespace
}  // namespace kirto::test
