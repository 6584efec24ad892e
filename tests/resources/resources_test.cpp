#include "resources/resources.h"

#include <functional>
#include <gtest/gtest.h>

#include "base/allocation.h"
#include "base/byte_order.h"
#include "resources/resources_layout.h"
#include "resources/resources_writer.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

constexpr type_code kText = FourCharCode("TEXT");
constexpr type_code kOther = FourCharCode("OTHR");

// Offsets in any container with at most 117 resources.
constexpr size_t kIndex = 0x44;
constexpr size_t kInfoPlace = kIndex + 30 * 4;
constexpr size_t kFirstEntry = kIndex + 33 * 4;

Bytes BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

// "one" (id 7) and "two" (id -3) of a type and "one" (id 7) of another.
ResourcesWriter ThreeResources() {
    ResourcesWriter writer;
    writer.Add(kText, 7, "one", BytesOf("uno"));
    writer.Add(kOther, 7, "one", BytesOf("eins"));
    writer.Add(kText, -3, "two", {});
    return writer;
}

uint32 WordAt(const Bytes& bytes, size_t offset) {
    return ReadLittle32(bytes.data() + offset);
}

void SetWord(Bytes* bytes, size_t offset, uint32 value) {
    WriteLittle16(bytes->data() + offset, value);
    WriteLittle16(bytes->data() + offset + 2, value >> 16);
}

std::unique_ptr<BResources> Read(const Bytes& bytes) {
    return std::make_unique<BResources>(BFile::OnMemory(bytes).get());
}

// Nothing at all is found in a container that is refused.
void ExpectRefused(const Bytes& bytes, status_t status = B_BAD_DATA) {
    const auto resources = Read(bytes);
    EXPECT_EQ(resources->InitCheck(), status);
    EXPECT_TRUE(resources->Resources().empty());
    EXPECT_FALSE(resources->HasResource(kText, "one"));
    EXPECT_FALSE(resources->HasResource(kText, 7));
    EXPECT_FALSE(resources->FindResource(kText, "one").has_value());
    EXPECT_FALSE(resources->FindResource(kText, 7).has_value());
}

void ExpectRefusedWithWord(size_t offset, uint32 value) {
    Bytes bytes = ThreeResources().Container();
    ASSERT_NE(WordAt(bytes, offset), value);
    SetWord(&bytes, offset, value);
    ExpectRefused(bytes);
}

// The container of the three resources with an info table changed by edit, and its check word made
// right again.
Bytes WithInfoTable(const std::function<void(Bytes* blocks)>& edit) {
    Bytes bytes = ThreeResources().Container();
    const size_t start = WordAt(bytes, kInfoPlace);
    Bytes blocks(bytes.begin() + static_cast<std::ptrdiff_t>(start), bytes.end() - 8);
    edit(&blocks);
    bytes.resize(start);
    bytes.insert(bytes.end(), blocks.begin(), blocks.end());
    bytes.resize(bytes.size() + 8);
    SetWord(&bytes, bytes.size() - 8, InfoTableCheck(blocks));
    SetWord(&bytes, kInfoPlace + 4, static_cast<uint32>(blocks.size() + 8));
    return bytes;
}

// Offsets in that info table: the type, then id, position, length of the name and name of "one",
// and the same of "two".
constexpr size_t kOneId = 4;
constexpr size_t kOnePosition = 8;
constexpr size_t kOneLength = 12;
constexpr size_t kOneName = 14;
constexpr size_t kTwoPosition = kOneName + 4 + 4;
constexpr size_t kTextEnd = kTwoPosition + 4 + 2 + 4;

}  // namespace

TEST(BResources, FindsResourcesByTypeAndName) {
    const auto resources = Read(ThreeResources().Container());
    ASSERT_EQ(resources->InitCheck(), B_OK);
    EXPECT_TRUE(resources->HasResource(kText, "one"));
    const auto found = resources->FindResource(kText, "one");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(Bytes(found->begin(), found->end()), BytesOf("uno"));
    EXPECT_FALSE(resources->HasResource(kText, "three"));
    EXPECT_FALSE(resources->FindResource(kText, "three").has_value());
    EXPECT_FALSE(resources->HasResource(kText, "on"));
    EXPECT_FALSE(resources->HasResource(kText, ""));
}

TEST(BResources, FindsResourcesByTypeAndId) {
    const auto resources = Read(ThreeResources().Container());
    EXPECT_TRUE(resources->HasResource(kOther, 7));
    const auto found = resources->FindResource(kOther, 7);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(Bytes(found->begin(), found->end()), BytesOf("eins"));
    EXPECT_TRUE(resources->HasResource(kText, -3));
    EXPECT_FALSE(resources->HasResource(kText, 8));
    EXPECT_FALSE(resources->FindResource(kText, 8).has_value());
}

TEST(BResources, ANameOfAnotherTypeFindsNothing) {
    const auto resources = Read(ThreeResources().Container());
    EXPECT_TRUE(resources->HasResource(kText, "two"));
    EXPECT_FALSE(resources->HasResource(kOther, "two"));
    EXPECT_FALSE(resources->FindResource(kOther, "two").has_value());
    EXPECT_FALSE(resources->HasResource(kOther, -3));
}

TEST(BResources, AnEmptyResourceIsFoundToo) {
    const auto resources = Read(ThreeResources().Container());
    const auto found = resources->FindResource(kText, "two");
    ASSERT_TRUE(found.has_value());
    EXPECT_TRUE(found->empty());
}

TEST(BResources, TheFirstOfEqualNamesIsFound) {
    ResourcesWriter writer;
    writer.Add(kText, 1, "same", BytesOf("first"));
    writer.Add(kText, 1, "same", BytesOf("second"));
    const auto resources = Read(writer.Container());
    const auto by_name = resources->FindResource(kText, "same");
    EXPECT_EQ(Bytes(by_name->begin(), by_name->end()), BytesOf("first"));
    const auto by_id = resources->FindResource(kText, 1);
    EXPECT_EQ(by_id->data(), by_name->data());
}

TEST(BResources, ListsAllResources) {
    const auto resources = Read(ThreeResources().Container());
    ASSERT_EQ(resources->Resources().size(), 3u);
    const BResources::Resource& last = resources->Resources()[2];
    EXPECT_EQ(last.type, kText);
    EXPECT_EQ(last.id, -3);
    EXPECT_EQ(last.name, "two");
    EXPECT_TRUE(last.bytes.empty());
    EXPECT_EQ(resources->Resources()[1].name, "one");
}

TEST(BResources, NeedsTheFileNoLongerOnceItIsRead) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("r.rsrc"), ThreeResources().Container());
    auto file = std::make_unique<BFile>(folder.File("r.rsrc"), B_READ_ONLY);
    file->Seek(5, SEEK_FROM_START);
    const BResources resources(file.get());
    file.reset();
    WriteBytes(folder.File("r.rsrc"), {});
    const auto found = resources.FindResource(kText, "one");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(Bytes(found->begin(), found->end()), BytesOf("uno"));
}

TEST(BResources, AFileThatCantBeReadSaysWhy) {
    const TemporaryFolder folder;
    BFile absent(folder.File("absent"), B_READ_ONLY);
    EXPECT_EQ(BResources(&absent).InitCheck(), B_ENTRY_NOT_FOUND);
    WriteBytes(folder.File("shrinking"), ThreeResources().Container());
    BFile shrinking(folder.File("shrinking"), B_READ_ONLY);
    WriteBytes(folder.File("shrinking"), {});
    EXPECT_EQ(BResources(&shrinking).InitCheck(), B_IO_ERROR);
}

TEST(BResources, AContainerWithoutResourcesIsFine) {
    const auto resources = Read(ResourcesWriter().Container());
    EXPECT_EQ(resources->InitCheck(), B_OK);
    EXPECT_TRUE(resources->Resources().empty());
}

TEST(BResources, WhatStandsInReservedPlacesDoesNotMatter) {
    Bytes bytes = ThreeResources().Container();
    for (size_t i = 16; i < kIndex; ++i)
        bytes[i] = 0xAA;
    for (size_t i = kIndex + 5 * 4; i < kInfoPlace; ++i)
        bytes[i] = 0xBB;
    SetWord(&bytes, kInfoPlace + 8, 0xCCCCCCCC);
    for (size_t i = kFirstEntry + 3 * 12; i < 0x644 + 0x168; ++i)
        bytes[i] = 0xDD;
    EXPECT_EQ(Read(bytes)->InitCheck(), B_OK);
}

TEST(BResources, RefusesEveryFileThatIsCutShort) {
    const Bytes whole = ThreeResources().Container();
    for (size_t size = 0; size < whole.size(); ++size) {
        ExpectRefused(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    }
}

TEST(BResources, RefusesOtherKindsOfFiles) {
    ExpectRefusedWithWord(0, 0x444F1001);
    ExpectRefused(Bytes(100, 0));
}

TEST(BResources, RefusesCountsThatTheIndexHasNoRoomFor) {
    ExpectRefusedWithWord(4, 118);
    ExpectRefusedWithWord(4, 0xFFFFFFFF);
}

TEST(BResources, RefusesResourcesThatTheInfoTableDoesNotName) {
    // An unused entry: data of no bytes at the container's end.
    Bytes bytes = ThreeResources().Container();
    SetWord(&bytes, 4, 4);
    SetWord(&bytes, kFirstEntry + 3 * 12, static_cast<uint32>(bytes.size()));
    ExpectRefused(bytes);
}

TEST(BResources, RefusesSectionsInOtherPlaces) {
    ExpectRefusedWithWord(8, 0x48);             // index, as the header has it
    ExpectRefusedWithWord(kIndex, 0x48);        // index, as the index has it
    ExpectRefusedWithWord(12, 0x640);           // size of the administrative sections
    ExpectRefusedWithWord(12, 0x20);            // smaller than an index without entries
    ExpectRefusedWithWord(12, 0x7FFFFFFF);      // past the end
    ExpectRefusedWithWord(kIndex + 4, 0x604);   // size of the index
    ExpectRefusedWithWord(kIndex + 8, 0x3E8);   // the index's mark
    ExpectRefusedWithWord(kIndex + 12, 0x648);  // the section behind the index
    ExpectRefusedWithWord(kIndex + 16, 0x7FFFFFFF);
}

TEST(BResources, RefusesDataOutsideTheContainer) {
    const uint32 size = static_cast<uint32>(ThreeResources().Container().size());
    ExpectRefusedWithWord(kFirstEntry, size + 1);
    ExpectRefusedWithWord(kFirstEntry, 0xFFFFFFFE);  // with its size of 3, a sum that wraps
    ExpectRefusedWithWord(kFirstEntry + 4, size);
    ExpectRefusedWithWord(kFirstEntry + 4, 0xFFFFFFFF);
    ExpectRefusedWithWord(kFirstEntry + 8, 1);
}

TEST(BResources, RefusesDataInTheAdministrativeSections) {
    ExpectRefusedWithWord(kFirstEntry, 0);
    ExpectRefusedWithWord(kFirstEntry, 0x644);
    ExpectRefusedWithWord(kFirstEntry, 0x644 + 0x168 - 1);
}

TEST(BResources, RefusesAnInfoTableOutsideTheContainer) {
    ExpectRefusedWithWord(kInfoPlace, 0x44);
    ExpectRefusedWithWord(kInfoPlace, 0xFFFFFFF0);
    ExpectRefusedWithWord(kInfoPlace + 4, 0xFFFFFFF0);
    ExpectRefusedWithWord(kInfoPlace + 4, 7);  // no room for its last two words
    ExpectRefusedWithWord(kInfoPlace + 4, 0);
}

TEST(BResources, ChecksTheSumOverTheInfoTable) {
    Bytes bytes = ThreeResources().Container();
    const size_t id = WordAt(bytes, kInfoPlace) + kOneId;
    EXPECT_EQ(WordAt(bytes, id), 7u);
    SetWord(&bytes, id, 8);
    ExpectRefused(bytes);
}

TEST(BResources, RefusesAnInfoTableThatDoesNotEndInAZeroWord) {
    Bytes bytes = ThreeResources().Container();
    bytes.back() = 1;
    ExpectRefused(bytes);
}

TEST(BResources, RefusesPositionsOutsideTheIndex) {
    EXPECT_EQ(Read(WithInfoTable([](Bytes*) {}))->InitCheck(), B_OK);
    ExpectRefused(WithInfoTable([](Bytes* blocks) { SetWord(blocks, kOnePosition, 0); }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { SetWord(blocks, kOnePosition, 4); }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { SetWord(blocks, kOnePosition, 0xFFFFFFFF); }));
}

TEST(BResources, RefusesAPositionThatIsNamedTwice) {
    ExpectRefused(WithInfoTable([](Bytes* blocks) { SetWord(blocks, kTwoPosition, 1); }));
}

TEST(BResources, AnIdMayHaveAllBitsSet) {
    const Bytes bytes = WithInfoTable([](Bytes* blocks) { SetWord(blocks, kOneId, 0xFFFFFFFF); });
    EXPECT_TRUE(Read(bytes)->HasResource(kText, -1));
}

TEST(BResources, RefusesNamesWithoutTheirTerminator) {
    ExpectRefused(WithInfoTable([](Bytes* blocks) { (*blocks)[kOneName + 3] = 'x'; }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { (*blocks)[kOneName + 1] = 0; }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { (*blocks)[kOneLength] = 0; }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { (*blocks)[kOneLength + 1] = 0xFF; }));
}

TEST(BResources, RefusesATypeWithoutItsEnd) {
    ExpectRefused(
        WithInfoTable([](Bytes* blocks) { blocks->erase(blocks->end() - 8, blocks->end()); }));
    ExpectRefused(
        WithInfoTable([](Bytes* blocks) { blocks->erase(blocks->end() - 4, blocks->end()); }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { SetWord(blocks, kTextEnd + 4, 0xFFFFFFFE); }));
    ExpectRefused(WithInfoTable([](Bytes* blocks) { blocks->push_back(0); }));
}

TEST(BResources, RefusesContainersThatAreTooLarge) {
    Bytes bytes = ThreeResources().Container();
    bytes.resize(kMaxContainerSize);
    EXPECT_EQ(Read(bytes)->InitCheck(), B_OK);
    bytes.push_back(0);
    ExpectRefused(bytes, B_NO_MEMORY);
}

TEST(BResources, ReportsFailedAllocations) {
    const Bytes bytes = ThreeResources().Container();
    for (int64 call = 1; call <= 2; ++call) {
        const AllocationFault fault(call);
        ExpectRefused(bytes, B_NO_MEMORY);
    }
    const AllocationFault fault(3);
    EXPECT_EQ(Read(bytes)->InitCheck(), B_OK);
}

}  // namespace kirto::test
