#include "resources/resources_writer.h"

#include <gtest/gtest.h>

#include "base/byte_order.h"
#include "resources/resources.h"
#include "resources/resources_layout.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

uint32 WrittenWordAt(const Bytes& bytes, size_t offset) {
    return ReadLittle32(bytes.data() + offset);
}

// What a program carries, in the order that it is laid out.
ResourcesWriter EightResources() {
    ResourcesWriter writer;
    writer.Add(kWindowArchiveType, 0, "PreferencesWindow", Bytes(25170, 1));
    writer.Add(kLargeIconType, 101, "BEOS:L:STD_ICON", Bytes(1024, 2));
    writer.Add(kMiniIconType, 101, "BEOS:M:STD_ICON", Bytes(256, 3));
    writer.Add(B_MESSAGE_TYPE, 1, "BEOS:FILE_TYPES", Bytes(79, 4));
    writer.Add(kMimeStringType, 1, "BEOS:APP_SIG", Bytes(30, 5));
    writer.Add(kMimeStringType, 2, "BEOS:TYPE", Bytes(35, 6));
    writer.Add(kVersionType, 1, "BEOS:APP_VERSION", Bytes(680, 7));
    writer.Add(kFlagsType, 1, "BEOS:APP_FLAGS", Bytes(4, 8));
    return writer;
}

}  // namespace

TEST(ResourcesWriter, LaysOutTheHeader) {
    const Bytes bytes = EightResources().Container();
    EXPECT_EQ(WrittenWordAt(bytes, 0), 0x444F1000u);
    EXPECT_EQ(WrittenWordAt(bytes, 4), 8u);
    EXPECT_EQ(WrittenWordAt(bytes, 8), 0x44u);
    EXPECT_EQ(WrittenWordAt(bytes, 12), 0x644u);
    for (size_t i = 16; i < 0x44; ++i)
        EXPECT_EQ(bytes[i], 0) << i;
}

TEST(ResourcesWriter, LaysOutTheIndex) {
    const Bytes bytes = EightResources().Container();
    EXPECT_EQ(WrittenWordAt(bytes, 0x44), 0x44u);
    EXPECT_EQ(WrittenWordAt(bytes, 0x48), 0x600u);
    EXPECT_EQ(WrittenWordAt(bytes, 0x4C), 0x3E9u);
    EXPECT_EQ(WrittenWordAt(bytes, 0x50), 0x644u);
    EXPECT_EQ(WrittenWordAt(bytes, 0x54), 0x168u);
    EXPECT_EQ(WrittenWordAt(bytes, 0x58 + 25 * 4), 0x723Au);
    EXPECT_EQ(WrittenWordAt(bytes, 0x58 + 26 * 4), 0x125u);
    const size_t entries = 0x58 + 28 * 4;
    EXPECT_EQ(WrittenWordAt(bytes, entries), 0x7ACu);
    EXPECT_EQ(WrittenWordAt(bytes, entries + 4), 25170u);
    EXPECT_EQ(WrittenWordAt(bytes, entries + 8), 0u);
    EXPECT_EQ(WrittenWordAt(bytes, entries + 12), 0x7ACu + 25170u);
    EXPECT_EQ(WrittenWordAt(bytes, entries + 16), 1024u);
    EXPECT_EQ(WrittenWordAt(bytes, entries + 8 * 12), 0u);
}

TEST(ResourcesWriter, LaysOutTheInfoTable) {
    const Bytes bytes = EightResources().Container();
    ASSERT_EQ(bytes.size(), 0x723Au + 0x125u);
    size_t at = 0x723A;
    EXPECT_EQ(WrittenWordAt(bytes, at), FourCharCode("ARCV"));
    EXPECT_EQ(WrittenWordAt(bytes, at + 4), 0u);
    EXPECT_EQ(WrittenWordAt(bytes, at + 8), 1u);
    EXPECT_EQ(ReadLittle16(&bytes[at + 12]), 18);
    EXPECT_STREQ(reinterpret_cast<const char*>(&bytes[at + 14]), "PreferencesWindow");
    at += 14 + 18;
    EXPECT_EQ(WrittenWordAt(bytes, at), 0xFFFFFFFFu);
    EXPECT_EQ(WrittenWordAt(bytes, at + 4), 0xFFFFFFFFu);
    EXPECT_EQ(WrittenWordAt(bytes, at + 8), FourCharCode("ICON"));
    const Bytes blocks(bytes.begin() + 0x723A, bytes.end() - 8);
    EXPECT_EQ(WrittenWordAt(bytes, bytes.size() - 12), 0xFFFFFFFFu);
    EXPECT_EQ(WrittenWordAt(bytes, bytes.size() - 8), InfoTableCheck(blocks));
    EXPECT_EQ(WrittenWordAt(bytes, bytes.size() - 4), 0u);
}

TEST(ResourcesWriter, TheCheckWordIsTheSumOfWords) {
    EXPECT_EQ(InfoTableCheck(Bytes{}), 0u);
    EXPECT_EQ(InfoTableCheck(Bytes{1, 2, 3, 4}), 0x04030201u);
    EXPECT_EQ(InfoTableCheck(Bytes{0xFF, 0xFF, 0xFF, 0xFF, 2, 1}), 0x101u);
}

TEST(ResourcesWriter, AnIndexGrowsInSteps) {
    ResourcesWriter writer;
    for (int32 id = 0; id < 117; ++id)
        writer.Add(FourCharCode("TEXT"), id, "name", {static_cast<uint8>(id)});
    EXPECT_EQ(WrittenWordAt(writer.Container(), 0x48), 0x600u);
    writer.Add(FourCharCode("TEXT"), 117, "last", {117});
    const Bytes bytes = writer.Container();
    EXPECT_EQ(WrittenWordAt(bytes, 0x48), 0xC00u);
    EXPECT_EQ(WrittenWordAt(bytes, 12), 0xC44u);
    const auto file = BFile::OnMemory(bytes);
    const BResources resources(file.get());
    ASSERT_EQ(resources.InitCheck(), B_OK);
    ASSERT_EQ(resources.Resources().size(), 118u);
    EXPECT_EQ(resources.FindResource(FourCharCode("TEXT"), "last")->front(), 117);
}

TEST(ResourcesWriter, RefusesNamesThatAreNone) {
    ResourcesWriter writer;
    EXPECT_EQ(writer.Add(1, 1, std::string_view("a\0b", 3), {}), B_BAD_VALUE);
    EXPECT_EQ(writer.Add(1, 1, std::string(0xFFFF, 'n'), {}), B_BAD_VALUE);
    EXPECT_EQ(writer.Container(), ResourcesWriter().Container());
}

TEST(ResourcesWriter, TakesTheLongestNameAndTheEmptyOne) {
    ResourcesWriter writer;
    const std::string longest(0xFFFE, 'n');
    EXPECT_EQ(writer.Add(1, 1, longest, {1}), B_OK);
    EXPECT_EQ(writer.Add(1, 2, "", {2}), B_OK);
    const auto file = BFile::OnMemory(writer.Container());
    const BResources resources(file.get());
    EXPECT_TRUE(resources.HasResource(1, longest));
    EXPECT_TRUE(resources.HasResource(1, ""));
}

TEST(ResourcesWriter, RefusesWhatItsReaderWouldFindTooLarge) {
    ResourcesWriter writer;
    EXPECT_EQ(writer.Add(1, 1, "large", Bytes(kMaxContainerSize)), B_NO_MEMORY);
    EXPECT_EQ(writer.Add(1, 1, "large", Bytes(kMaxContainerSize - 0x1000)), B_OK);
    EXPECT_EQ(writer.Add(1, 2, "more", Bytes(0x1000)), B_NO_MEMORY);
    const auto file = BFile::OnMemory(writer.Container());
    EXPECT_EQ(BResources(file.get()).InitCheck(), B_OK);
}

}  // namespace kirto::test
