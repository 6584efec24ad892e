#include "kit/targa.h"

#include <atomic>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "support/test_support.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

enum TargaType : uint8 { kIndexed = 1, kColor = 2, kGrey = 3, kPackedIndexed = 9, kPacked = 10 };

constexpr uint8 kTopDown = 0x20;

// A header without comment and colour table.
Bytes Header(TargaType type, int32 width, int32 height, uint8 bits, uint8 descriptor = kTopDown) {
    Bytes bytes(18);
    bytes[2] = type;
    WriteLittle16(&bytes[12], width);
    WriteLittle16(&bytes[14], height);
    bytes[16] = bits;
    bytes[17] = descriptor;
    return bytes;
}

Bytes operator+(Bytes first, const Bytes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// The same with a colour table of 24-bit entries.
Bytes WithTable(Bytes header, const Bytes& table) {
    header[1] = 1;
    WriteLittle16(&header[5], static_cast<int64>(table.size() / 3));
    header[7] = 24;
    return header + table;
}

struct Reading {
    status_t status = B_OK;
    std::shared_ptr<BBitmap> bitmap;
};

Reading Read(const Bytes& bytes, std::shared_ptr<PixelBudget> budget = nullptr) {
    Reading reading;
    const auto file = BFile::OnMemory(bytes);
    reading.status = ReadTarga(*file, std::move(budget), &reading.bitmap);
    return reading;
}

void ExpectPixels(const Bytes& bytes, color_space space, const std::vector<uint32>& pixels) {
    const Reading reading = Read(bytes);
    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.bitmap->ColorSpace(), space);
    EXPECT_EQ(PixelsOf(*reading.bitmap), pixels);
}

void ExpectRefused(const Bytes& bytes, status_t status = B_BAD_DATA) {
    const Reading reading = Read(bytes);
    EXPECT_EQ(reading.status, status);
    EXPECT_EQ(reading.bitmap, nullptr);
}

Bytes Written(const Bytes& rgba, int32 width, int32 height, bool with_alpha, bool packed) {
    const auto file = BFile::OnMemory();
    EXPECT_EQ(WriteTarga(rgba.data(), width, height, with_alpha, packed, *file), B_OK);
    return file->Memory();
}

// Runs and single pixels in turn, some of them across the ends of rows and past 128 pixels.
Bytes RandomRuns(size_t pixels, uint32 seed) {
    std::minstd_rand random(seed);
    Bytes rgba;
    while (rgba.size() < pixels * 4) {
        const size_t run = random() % 3 == 0 ? random() % 300 : 1;
        Bytes pixel(4);
        for (uint8& component : pixel)
            component = static_cast<uint8>(random() % 3 * 127);
        for (size_t i = 0; i < run; ++i)
            rgba.insert(rgba.end(), pixel.begin(), pixel.end());
    }
    rgba.resize(pixels * 4);
    return rgba;
}

std::vector<uint32> ArgbOf(const Bytes& rgba, bool with_alpha) {
    std::vector<uint32> argb;
    for (size_t i = 0; i < rgba.size(); i += 4) {
        const uint32 alpha = with_alpha ? rgba[i + 3] : 255;
        argb.push_back(alpha << 24 | static_cast<uint32>(rgba[i]) << 16 |
                       static_cast<uint32>(rgba[i + 1]) << 8 | rgba[i + 2]);
    }
    return argb;
}

}  // namespace

TEST(Targa, ReadsTrueColourInRowsFromTheTopOrTheBottom) {
    const Bytes pixels = {1, 2, 3, 4, 5, 6};

    ExpectPixels(Header(kColor, 1, 2, 24) + pixels, B_RGB32, {0xFF030201, 0xFF060504});
    ExpectPixels(Header(kColor, 1, 2, 24, 0) + pixels, B_RGB32, {0xFF060504, 0xFF030201});
}

TEST(Targa, KeepsAlphaAsItStands) {
    ExpectPixels(Header(kColor, 2, 1, 32) + Bytes{10, 20, 30, 0, 200, 100, 50, 128}, B_RGBA32,
                 {0x001E140A, 0x803264C8});
}

TEST(Targa, ReadsGreyWithAndWithoutAlpha) {
    ExpectPixels(Header(kGrey, 2, 1, 8) + Bytes{0, 200}, B_RGB32, {0xFF000000, 0xFFC8C8C8});
    ExpectPixels(Header(kGrey, 1, 1, 16) + Bytes{200, 7}, B_RGBA32, {0x07C8C8C8});
}

TEST(Targa, ReadsFifteenAndSixteenBitsOfColour) {
    for (const uint8 bits : {uint8{15}, uint8{16}}) {
        ExpectPixels(Header(kColor, 2, 1, bits) + Bytes{0x00, 0x7C, 0x1F, 0x00}, B_RGB32,
                     {0xFFFF0000, 0xFF0000FF});
    }
}

TEST(Targa, ReadsIndexedColours) {
    const Bytes table = {1, 2, 3, 4, 5, 6};

    ExpectPixels(WithTable(Header(kIndexed, 3, 1, 8), table) + Bytes{1, 0, 1}, B_RGB32,
                 {0xFF060504, 0xFF030201, 0xFF060504});
    ExpectPixels(WithTable(Header(kPackedIndexed, 3, 1, 8), table) + Bytes{0x82, 1}, B_RGB32,
                 {0xFF060504, 0xFF060504, 0xFF060504});
}

TEST(Targa, TakesAnIndexPastTheTableForTheFirstColour) {
    ExpectPixels(WithTable(Header(kIndexed, 1, 1, 8), {1, 2, 3}) + Bytes{200}, B_RGB32,
                 {0xFF030201});
}

TEST(Targa, ReadsPackedColoursWhosePacketsCrossRows) {
    ExpectPixels(Header(kPacked, 2, 2, 24) + Bytes{0x82, 9, 9, 9, 0x00, 1, 2, 3}, B_RGB32,
                 {0xFF090909, 0xFF090909, 0xFF090909, 0xFF030201});
}

TEST(Targa, IgnoresWhatAPacketHoldsPastThePicture) {
    ExpectPixels(Header(kPacked, 1, 1, 24) + Bytes{0xFF, 1, 2, 3}, B_RGB32, {0xFF030201});
    ExpectPixels(Header(kPacked, 1, 1, 24) + Bytes{0x7F, 1, 2, 3}, B_RGB32, {0xFF030201});
}

TEST(Targa, PassesOverTheCommentAndWhatFollowsThePixels) {
    Bytes header = Header(kColor, 1, 1, 24);
    header[0] = 3;

    ExpectPixels(header + Bytes{'a', 'b', 'c', 1, 2, 3} + Bytes(5000, 0xAA), B_RGB32, {0xFF030201});
}

TEST(Targa, RefusesWhatIsNoHeader) {
    ExpectRefused({});
    ExpectRefused(Bytes(17));
    ExpectRefused(Bytes(5000));
    ExpectRefused(Bytes(5000, 0xFF));
    ExpectRefused(Header(kColor, 0, 1, 24) + Bytes(30));
    ExpectRefused(Header(kColor, 1, 0, 24) + Bytes(30));
    ExpectRefused(Header(kColor, 1, 1, 23) + Bytes(30));
    ExpectRefused(Header(kIndexed, 1, 1, 8) + Bytes(30));
}

TEST(Targa, RefusesPixelsThatAreNotAllThere) {
    ExpectRefused(Header(kColor, 2, 2, 24) + Bytes(11));
    ExpectRefused(Header(kColor, 2, 2, 16) + Bytes(7));
    ExpectRefused(WithTable(Header(kIndexed, 2, 2, 8), {1, 2, 3}) + Bytes(3));
}

TEST(Targa, RefusesPacketsThatAreNotAllThere) {
    ExpectRefused(Header(kPacked, 4, 1, 24) + Bytes{0x81, 1, 2, 3});
    ExpectRefused(Header(kPacked, 4, 1, 24) + Bytes{0x81, 1, 2, 3, 0x81, 1, 2});
    ExpectRefused(Header(kPacked, 4, 1, 24) + Bytes{0x03, 1, 2, 3, 1, 2, 3, 1, 2, 3});
}

TEST(Targa, RefusesATableThatIsEmptyOrNotAllThere) {
    ExpectRefused(WithTable(Header(kIndexed, 1, 1, 8), {}) + Bytes{0});
    Bytes cut = WithTable(Header(kIndexed, 1, 1, 8), {1, 2, 3});
    WriteLittle16(&cut[5], 256);
    ExpectRefused(cut + Bytes{0});
}

TEST(Targa, RefusesAHugePictureInATinyFile) {
    ExpectRefused(Header(kColor, 65535, 65535, 32) + Bytes(100));
    ExpectRefused(Header(kPacked, 65535, 65535, 8) + Bytes(100));
}

TEST(Targa, RefusesWhatTheBudgetDoesNotAllow) {
    const Bytes bytes = Header(kColor, 2, 2, 24) + Bytes(12);

    EXPECT_EQ(Read(bytes, std::make_shared<PixelBudget>(PixelBudget::kFrameCost + 15)).status,
              B_NO_MEMORY);
    EXPECT_EQ(Read(bytes, std::make_shared<PixelBudget>(PixelBudget::kFrameCost + 16)).status,
              B_OK);
}

TEST(Targa, FailsWithoutMemory) {
    const Bytes bytes = Header(kColor, 2, 2, 24) + Bytes(12);
    for (const int64 failing : {1, 2}) {
        const AllocationFault fault(failing);
        EXPECT_EQ(Read(bytes).status, B_NO_MEMORY);
    }
    const auto file = BFile::OnMemory();
    const AllocationFault fault(1);
    EXPECT_EQ(WriteTarga(bytes.data(), 1, 1, false, false, *file), B_NO_MEMORY);
}

TEST(Targa, ReadsBackWhatItWrites) {
    for (uint32 seed = 0; seed < 200; ++seed) {
        const int32 width = 1 + static_cast<int32>(seed * 7 % 300);
        const int32 height = 1 + static_cast<int32>(seed % 5);
        const Bytes rgba =
            RandomRuns(static_cast<size_t>(width) * static_cast<size_t>(height), seed);
        for (const bool with_alpha : {false, true}) {
            for (const bool packed : {false, true}) {
                ExpectPixels(Written(rgba, width, height, with_alpha, packed),
                             with_alpha ? B_RGBA32 : B_RGB32, ArgbOf(rgba, with_alpha));
            }
        }
    }
}

TEST(Targa, TakesFewerBytesPackedWherePixelsRepeat) {
    const Bytes rgba(4 * 1000, 77);

    EXPECT_EQ(Written(rgba, 100, 10, true, false).size(), 18 + 4000U);
    EXPECT_LT(Written(rgba, 100, 10, true, true).size(), 18 + 100U);
}

TEST(Targa, WritesRowsFromTheTopAndSaysSo) {
    const Bytes rgba = {3, 2, 1, 9, 6, 5, 4, 9};

    const Bytes plain = Written(rgba, 1, 2, true, false);
    const Bytes packed = Written(rgba, 1, 2, false, true);

    EXPECT_EQ(plain, Header(kColor, 1, 2, 32, 0x28) + Bytes({1, 2, 3, 9, 4, 5, 6, 9}));
    EXPECT_EQ(packed, Header(kPacked, 1, 2, 24, 0x20) + Bytes({0, 1, 2, 3, 0, 4, 5, 6}));
}

TEST(Targa, PacksRunsAndKeepsWhatDiffersAsItStands) {
    // Alpha alone tells pixels apart only where the file has it.
    const Bytes rgba = {1, 1, 1, 9, 1, 1, 1, 8, 2, 2, 2, 9, 3, 3, 3, 9, 3, 3, 3, 9};

    EXPECT_EQ(Written(rgba, 5, 1, false, true),
              Header(kPacked, 5, 1, 24, 0x20) + Bytes({0x81, 1, 1, 1, 0, 2, 2, 2, 0x81, 3, 3, 3}));
    EXPECT_EQ(Written(rgba, 5, 1, true, true),
              Header(kPacked, 5, 1, 32, 0x28) +
                  Bytes({2, 1, 1, 1, 9, 1, 1, 1, 8, 2, 2, 2, 9, 0x81, 3, 3, 3, 9}));
}

TEST(Targa, WritesOnSeveralThreadsAtOnce) {
    const Bytes rgba = RandomRuns(300 * 20, 3);
    const Bytes packed = Written(rgba, 300, 20, true, true);
    const Bytes plain = Written(rgba, 300, 20, false, false);
    std::vector<std::thread> threads;
    std::atomic<int> failures = 0;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&, pack = thread % 2 == 0] {
            for (int i = 0; i < 50; ++i)
                failures += Written(rgba, 300, 20, pack, pack) != (pack ? packed : plain);
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(failures, 0);
}

TEST(Targa, DoesNotWriteSidesThatItsHeaderCanNotHold) {
    const Bytes rgba(4);
    const auto file = BFile::OnMemory();
    const std::vector<std::pair<int32, int32>> sizes = {{0, 1},     {1, 0},     {-1, 1},
                                                        {65536, 1}, {1, 65536}, {65535, 65535}};
    for (const auto& [width, height] : sizes) {
        EXPECT_EQ(WriteTarga(rgba.data(), width, height, true, true, *file), B_BAD_VALUE);
    }
    EXPECT_TRUE(file->Memory().empty());
}

TEST(Targa, TellsThatAFileCanNotBeWritten) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("read_only"), {1, 2, 3});
    BFile file(folder.File("read_only"), B_READ_ONLY);

    EXPECT_EQ(WriteTarga(Bytes(4).data(), 1, 1, true, false, file), B_IO_ERROR);
    EXPECT_EQ(ReadBytes(folder.File("read_only")), (Bytes{1, 2, 3}));
}

}  // namespace kirto::test
