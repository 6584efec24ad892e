#include <filesystem>
#include <gtest/gtest.h>

#include "color/palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

constexpr rgb_color kFileBlack{0, 0, 0, 255};

Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

bool StripGif(Palette& palette, const Bytes& bytes) {
    return palette.StripGif(BFile::OnMemory(bytes).get());
}

bool StripFli(Palette& palette, const Bytes& bytes) {
    return palette.StripFli(BFile::OnMemory(bytes).get());
}

// Signature, version and screen descriptor.
Bytes GifHeader(uint8 packed) {
    return {'G', 'I', 'F', '8', '9', 'a', 4, 0, 4, 0, packed, 0, 0};
}

// An image descriptor.
Bytes GifImage(uint8 packed) {
    return {0x2C, 0, 0, 0, 0, 4, 0, 4, 0, packed};
}

// Table entry i is (i, 2i, 255 - i).
Bytes Triples(size_t count) {
    Bytes bytes;
    for (size_t i = 0; i < count; ++i) {
        bytes.push_back(static_cast<uint8>(i));
        bytes.push_back(static_cast<uint8>(2 * i));
        bytes.push_back(static_cast<uint8>(255 - i));
    }
    return bytes;
}

rgb_color Triple(size_t i) {
    return {static_cast<uint8>(i), static_cast<uint8>(2 * i), static_cast<uint8>(255 - i), 255};
}

void ExpectTriples(const Palette& palette, size_t count) {
    for (size_t i = 0; i < count; ++i)
        EXPECT_EQ(palette.colors[i], Triple(i)) << "entry " << i;
}

// A comment of one data sub-block.
const Bytes kComment = {0x21, 0xFE, 3, 'h', 'i', '!', 0};

// File header and the header of the first frame, which announces so many chunks.
Bytes FliHeaders(uint16 chunks) {
    Bytes bytes(128 + 16);
    WriteLittle16(&bytes[4], 0xAF11);
    WriteLittle16(&bytes[128 + 4], 0xF1FA);
    WriteLittle16(&bytes[128 + 6], chunks);
    return bytes;
}

Bytes ChunkHeader(int64 size, uint16 type) {
    Bytes bytes(6);
    WriteLittle16(&bytes[0], size);
    WriteLittle16(&bytes[2], size >> 16);
    WriteLittle16(&bytes[4], type);
    return bytes;
}

// A colour chunk with these bytes and, behind it, the 6 bytes that are read along with it.
Bytes ColorChunk(const Bytes& data) {
    return ChunkHeader(static_cast<int64>(data.size()) + 6, 11) + data + Bytes(6);
}

bool IsAllBlack(const Palette& palette) {
    return std::all_of(palette.colors.begin(), palette.colors.end(),
                       [](const rgb_color& color) { return color == kFileBlack; });
}

const Bytes kGifFile = GifHeader(0x80) + Triples(2);
const Bytes kFliFile = FliHeaders(1) + ColorChunk({1, 0, 0, 1, 10, 20, 30});

}  // namespace

TEST(StripGif, ReadsTheGlobalTable) {
    Palette palette(kPaletteSystem);

    EXPECT_TRUE(StripGif(palette, GifHeader(0x81) + Triples(4)));

    EXPECT_EQ(palette.bits, 2);
    EXPECT_EQ(palette.size, 4);
    ExpectTriples(palette, 4);
    EXPECT_EQ(palette.colors[4], kSystemColors[4]);
}

TEST(StripGif, ReadsTablesOfEverySize) {
    for (uint8 n = 0; n < 8; ++n) {
        Palette palette;
        const size_t size = size_t{2} << n;

        EXPECT_TRUE(StripGif(palette, GifHeader(static_cast<uint8>(0xF8 | n)) + Triples(size)));

        EXPECT_EQ(palette.bits, n + 1);
        EXPECT_EQ(palette.size, static_cast<int32>(size));
        ExpectTriples(palette, size);
    }
}

TEST(StripGif, StartsAtTheFilesPosition) {
    const auto file = BFile::OnMemory(Bytes(5) + kGifFile);
    file->Seek(5, SEEK_FROM_START);
    Palette palette;

    EXPECT_TRUE(palette.StripGif(file.get()));

    ExpectTriples(palette, 2);
}

TEST(StripGif, ReadsTheFirstImagesTableWithoutAGlobalOne) {
    Palette palette;

    EXPECT_TRUE(StripGif(palette, GifHeader(0x07) + GifImage(0x82) + Triples(8)));

    EXPECT_EQ(palette.bits, 3);
    EXPECT_EQ(palette.size, 8);
    ExpectTriples(palette, 8);
}

TEST(StripGif, DoesNotAskWhetherTheFirstImageHasATable) {
    Palette palette;

    EXPECT_TRUE(StripGif(palette, GifHeader(0) + GifImage(0x01) + Triples(4)));

    EXPECT_EQ(palette.bits, 2);
    ExpectTriples(palette, 4);
}

TEST(StripGif, SkipsExtensionsOfOneSubBlock) {
    const Bytes control = {0x21, 0xF9, 4, 0, 10, 0, 0, 0};
    Palette palette;

    EXPECT_TRUE(StripGif(palette, GifHeader(0) + kComment + control + GifImage(0x80) + Triples(2)));

    EXPECT_EQ(palette.size, 2);
    ExpectTriples(palette, 2);
}

TEST(StripGif, LosesItsPlaceAndFailsInAnExtensionOfTwoSubBlocks) {
    const Bytes extension = {0x21, 0xFE, 1, 'a', 1, 'b', 0};
    Palette palette;

    EXPECT_FALSE(StripGif(palette, GifHeader(0) + extension + GifImage(0x80) + Triples(2)));

    EXPECT_EQ(palette.size, 216);
}

TEST(StripGif, MayReadAWrongTableAfterAnExtensionOfTwoSubBlocks) {
    // The second sub-block's "," is taken for the image, its 8 bytes later for the packed byte.
    const Bytes extension = {0x21, 0xFE, 1, 'a', 10, ',', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    Palette palette;

    EXPECT_TRUE(StripGif(palette, GifHeader(0) + extension + GifImage(0x82) + Triples(8)));

    EXPECT_EQ(palette.size, 2);
    EXPECT_EQ(palette.colors[0], (rgb_color{0, 0x2C, 0, 255}));
}

TEST(StripGif, FailsWhereNeitherImageNorExtensionFollows) {
    Palette palette;

    EXPECT_FALSE(StripGif(palette, GifHeader(0) + Bytes{0x3B, 0, 0} + GifImage(0x80) + Triples(2)));
    EXPECT_FALSE(StripGif(palette, GifHeader(0) + kComment + Bytes{0, 0, 0}));

    EXPECT_EQ(palette.colors, kWebSafeColors);
    EXPECT_EQ(palette.bits, 8);
}

TEST(StripGif, FailsOnEveryTruncation) {
    const Bytes global = GifHeader(0x80) + Triples(2);
    const Bytes local = GifHeader(0) + kComment + GifImage(0x80) + Triples(2);
    for (const Bytes& whole : {global, local}) {
        Palette palette;
        for (size_t length = 0; length < whole.size(); ++length) {
            const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
            EXPECT_FALSE(StripGif(palette, cut)) << length << " bytes";
        }
        EXPECT_TRUE(StripGif(palette, whole));
    }
}

TEST(StripGif, KeepsTheEntriesReadBeforeTheTableEnds) {
    Palette palette;

    EXPECT_FALSE(StripGif(palette, GifHeader(0x87) + Triples(3) + Bytes{1, 2}));

    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.size, 256);
    ExpectTriples(palette, 3);
    EXPECT_EQ(palette.colors[3], kWebSafeColors[3]);
}

TEST(StripFli, ReadsTheColorChunkWithoutWideningItsComponents) {
    Palette palette(kPaletteSystem);

    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ColorChunk({1, 0, 0, 2, 63, 0, 1, 2, 63, 200})));

    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.size, 256);
    EXPECT_EQ(palette.colors[0], (rgb_color{63, 0, 1, 255}));
    EXPECT_EQ(palette.colors[1], (rgb_color{2, 63, 200, 255}));
    for (size_t i = 2; i < 256; ++i)
        EXPECT_EQ(palette.colors[i], kFileBlack) << "entry " << i;
}

TEST(StripFli, AddsSkipsToTheRunningIndex) {
    Palette palette;

    EXPECT_TRUE(StripFli(
        palette, FliHeaders(1) + ColorChunk({2, 0, 3, 1, 1, 1, 1, 10, 2, 2, 2, 2, 3, 3, 3})));

    EXPECT_EQ(palette.colors[3], (rgb_color{1, 1, 1, 255}));
    EXPECT_EQ(palette.colors[4], kFileBlack);
    EXPECT_EQ(palette.colors[14], (rgb_color{2, 2, 2, 255}));
    EXPECT_EQ(palette.colors[15], (rgb_color{3, 3, 3, 255}));
}

TEST(StripFli, TakesACountOfZeroFor256) {
    Palette palette;

    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ColorChunk(Bytes{1, 0, 0, 0} + Triples(256))));

    ExpectTriples(palette, 256);
}

TEST(StripFli, DropsEntriesPastTheLast) {
    Palette palette;

    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ColorChunk({3,   0, 255, 2, 1, 1, 1, 2, 2, 2,  //
                                                              255, 1, 3,   3, 3, 0, 1, 4, 4, 4})));

    for (size_t i = 0; i < 255; ++i)
        EXPECT_EQ(palette.colors[i], kFileBlack) << "entry " << i;
    EXPECT_EQ(palette.colors[255], (rgb_color{1, 1, 1, 255}));
}

TEST(StripFli, ReadsAsManyPacketsAsThereAreEntries) {
    Bytes data = {0, 1};
    for (size_t i = 0; i < 256; ++i) {
        data = data + Bytes{0, 1, static_cast<uint8>(i), static_cast<uint8>(2 * i),
                            static_cast<uint8>(255 - i)};
    }
    Palette palette;

    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ColorChunk(data)));

    ExpectTriples(palette, 256);
}

TEST(StripFli, ReadsTheLongestChunkThatCanMatter) {
    Bytes data = {0, 1};
    for (size_t i = 0; i < 255; ++i)
        data = data + Bytes{0, 1, 0, 0, 0};
    data = data + Bytes{0, 0} + Bytes{7, 8, 9} + Bytes(3 * 255);
    Palette palette;

    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ColorChunk(data + Bytes(100000))));

    EXPECT_EQ(palette.colors[255], (rgb_color{7, 8, 9, 255}));
    EXPECT_EQ(palette.colors[254], kFileBlack);
}

TEST(StripFli, EndsWherePacketsAskForMoreThanWasRead) {
    Palette palette;

    // 5 triples are announced; the chunk and the 6 bytes behind it hold 3 and a part.
    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ChunkHeader(6 + 4 + 3 + 1, 11) +
                                      Bytes{9, 0, 0, 5} + Triples(3) + Bytes{1}));

    ExpectTriples(palette, 3);
    EXPECT_EQ(palette.colors[3], kFileBlack);
}

TEST(StripFli, EndsWherePacketsAreMissing) {
    Palette palette;

    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + ChunkHeader(7, 11) + Bytes{2, 0, 0, 1, 5, 6, 7}));

    EXPECT_EQ(palette.colors[0], (rgb_color{5, 6, 7, 255}));
    EXPECT_EQ(palette.colors[1], kFileBlack);
}

TEST(StripFli, NeedsTheSixBytesBehindTheChunk) {
    const Bytes data = {1, 0, 0, 1, 10, 20, 30};
    const Bytes chunk = ChunkHeader(6 + 7, 11) + data;
    Palette palette;

    EXPECT_FALSE(StripFli(palette, FliHeaders(1) + chunk));
    EXPECT_TRUE(IsAllBlack(palette));
    EXPECT_FALSE(StripFli(palette, FliHeaders(1) + chunk + Bytes(5)));
    EXPECT_TRUE(IsAllBlack(palette));
    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + chunk + Bytes(6)));
    EXPECT_EQ(palette.colors[0], (rgb_color{10, 20, 30, 255}));
}

TEST(StripFli, NeedsTheSixBytesBehindALongChunkToo) {
    const Bytes chunk =
        ChunkHeader(6 + 7 + 50000, 11) + Bytes{1, 0, 0, 1, 10, 20, 30} + Bytes(50000);
    Palette palette;

    EXPECT_FALSE(StripFli(palette, FliHeaders(1) + chunk + Bytes(5)));
    EXPECT_TRUE(IsAllBlack(palette));
    EXPECT_TRUE(StripFli(palette, FliHeaders(1) + chunk + Bytes(6)));
    EXPECT_EQ(palette.colors[0], (rgb_color{10, 20, 30, 255}));
}

TEST(StripFli, FailsOnImpossibleChunkSizes) {
    const Bytes data = Bytes{1, 0, 0, 1, 10, 20, 30} + Bytes(5000);
    for (const int64 size : {int64{-1}, int64{INT32_MIN}, int64{INT32_MAX}, int64{5008}}) {
        Palette palette;

        EXPECT_FALSE(StripFli(palette, FliHeaders(1) + ChunkHeader(size, 11) + data));

        EXPECT_TRUE(IsAllBlack(palette));
    }
}

TEST(StripFli, IsBlackAfterAChunkThatIsTooSmallForPackets) {
    for (const int64 size : {0, 1, 2, 3}) {
        Palette palette;

        EXPECT_TRUE(StripFli(
            palette, FliHeaders(1) + ChunkHeader(size, 11) + Bytes{1, 0, 0, 1, 10, 20, 30}));

        EXPECT_TRUE(IsAllBlack(palette));
    }
}

TEST(StripFli, SkipsOtherChunksBy256BytesWhateverTheirSize) {
    const Bytes color = ColorChunk({1, 0, 0, 1, 10, 20, 30});
    Palette palette;

    EXPECT_TRUE(StripFli(palette, FliHeaders(2) + ChunkHeader(6, 13) + Bytes(256) + color));
    EXPECT_EQ(palette.colors[0], (rgb_color{10, 20, 30, 255}));

    EXPECT_FALSE(StripFli(palette, FliHeaders(2) + ChunkHeader(6, 13) + color));
    EXPECT_TRUE(IsAllBlack(palette));
    EXPECT_FALSE(StripFli(palette, FliHeaders(2) + ChunkHeader(306, 15) + Bytes(300) + color));
    EXPECT_TRUE(IsAllBlack(palette));
}

TEST(StripFli, LooksAtNoMoreChunksThanTheFirstFrameHas) {
    const Bytes black = ChunkHeader(6, 13) + Bytes(256);
    const Bytes color = ColorChunk({1, 0, 0, 1, 10, 20, 30});
    Palette palette;

    EXPECT_FALSE(StripFli(palette, FliHeaders(0) + color));
    EXPECT_FALSE(StripFli(palette, FliHeaders(2) + black + black + color));
    EXPECT_TRUE(StripFli(palette, FliHeaders(3) + black + black + color));
}

TEST(StripFli, StopsAtTheFirstColorChunk) {
    const Bytes chunk = ChunkHeader(6 + 7, 11) + Bytes{1, 0, 0, 1, 10, 20, 30};
    Palette palette;

    EXPECT_TRUE(StripFli(
        palette, FliHeaders(2) + chunk + ColorChunk({1, 0, 0, 1, 40, 50, 60}) + Bytes(300)));

    EXPECT_EQ(palette.colors[0], (rgb_color{10, 20, 30, 255}));
}

TEST(StripFli, DoesNotKnowTheChunkOf256Levels) {
    Palette palette;

    EXPECT_FALSE(StripFli(
        palette, FliHeaders(1) + ChunkHeader(13, 4) + Bytes{1, 0, 0, 1, 10, 20, 30} + Bytes(300)));

    EXPECT_TRUE(IsAllBlack(palette));
    EXPECT_EQ(palette.size, 256);
    EXPECT_EQ(palette.bits, 8);
}

TEST(StripFli, DoesNotCheckMagicNumbers) {
    Bytes bytes = kFliFile;
    std::fill_n(bytes.begin(), 128 + 6, uint8{0});
    Palette palette;

    EXPECT_TRUE(StripFli(palette, bytes));
}

TEST(StripFli, ChangesNothingWhenItsHeadersAreCut) {
    for (const size_t length : {0U, 127U, 128U, 143U}) {
        const Bytes cut(kFliFile.begin(), kFliFile.begin() + static_cast<std::ptrdiff_t>(length));
        Palette palette;

        EXPECT_FALSE(StripFli(palette, cut)) << length << " bytes";

        EXPECT_EQ(palette.colors, kWebSafeColors);
        EXPECT_EQ(palette.size, 216);
    }
}

TEST(StripFli, FailsOnEveryTruncation) {
    for (size_t length = 0; length < kFliFile.size(); ++length) {
        const Bytes cut(kFliFile.begin(), kFliFile.begin() + static_cast<std::ptrdiff_t>(length));
        Palette palette;
        EXPECT_FALSE(StripFli(palette, cut)) << length << " bytes";
    }
}

TEST(PaletteFromFile, ReadsGifAndFliByTheirNames) {
    const TemporaryFolder folder;
    for (const char* name : {"colors.gif", "COLORS.GIF", "a gift"}) {
        WriteBytes(folder.File(name), kGifFile);
        Palette palette;

        EXPECT_TRUE(palette.Set(folder.File(name).c_str())) << name;

        EXPECT_EQ(palette.mode, kPaletteFromFile);
        EXPECT_EQ(palette.size, 2);
        ExpectTriples(palette, 2);
    }
    for (const char* name : {"colors.fli", "COLORS.FLI", "flight.flc"}) {
        WriteBytes(folder.File(name), kFliFile);
        Palette palette;

        EXPECT_TRUE(palette.Set(folder.File(name).c_str())) << name;

        EXPECT_EQ(palette.mode, kPaletteFromFile);
        EXPECT_EQ(palette.size, 256);
        EXPECT_EQ(palette.colors[0], (rgb_color{10, 20, 30, 255}));
    }
}

TEST(PaletteFromFile, DoesNotRecogniseFlcAndMixedCase) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("colors.flc"), kFliFile);
    WriteBytes(folder.File("colors.FLC"), kFliFile);
    WriteBytes(folder.File("colors.Fli"), kFliFile);
    WriteBytes(folder.File("colors.Gif"), kGifFile);
    for (const char* name : {"colors.flc", "colors.FLC", "colors.Fli", "colors.Gif"}) {
        Palette palette;

        EXPECT_FALSE(palette.Set(folder.File(name).c_str())) << name;

        EXPECT_EQ(palette.mode, kPaletteAwaitingFile);
        EXPECT_EQ(palette.colors, kWebSafeColors);
        EXPECT_EQ(palette.size, 216);
        EXPECT_EQ(palette.bits, 8);
    }
}

TEST(PaletteFromFile, ReadsAnFliInAFolderNamedGifsAsGif) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("gifs"));
    WriteBytes(folder.File("gifs/fli.fli"), kFliFile);
    WriteBytes(folder.File("gifs/gif.fli"), kGifFile);
    Palette palette;

    EXPECT_FALSE(palette.Set(folder.File("gifs/fli.fli").c_str()));
    EXPECT_EQ(palette.mode, kPaletteAwaitingFile);
    EXPECT_TRUE(palette.Set(folder.File("gifs/gif.fli").c_str()));
    EXPECT_EQ(palette.mode, kPaletteFromFile);
}

TEST(PaletteFromFile, FailsOnFilesThatCantBeRead) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("folder.gif"));
    for (const char* name : {"missing.gif", "missing.fli", "folder.gif"}) {
        Palette palette;

        EXPECT_FALSE(palette.Set(folder.File(name).c_str())) << name;

        EXPECT_EQ(palette.mode, kPaletteAwaitingFile);
        EXPECT_EQ(palette.colors, kWebSafeColors);
    }
    Palette palette;
    EXPECT_FALSE(palette.Set(""));
    EXPECT_EQ(palette.mode, kPaletteAwaitingFile);
}

TEST(PaletteFromFile, KeepsWhatATableThatWasCutShortGave) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("cut.gif"), GifHeader(0x82) + Triples(5));
    Palette palette;

    EXPECT_FALSE(palette.Set(folder.File("cut.gif").c_str()));

    EXPECT_EQ(palette.mode, kPaletteAwaitingFile);
    EXPECT_EQ(palette.size, 8);
    ExpectTriples(palette, 5);
    EXPECT_EQ(palette.colors[5], kWebSafeColors[5]);
}

}  // namespace kirto::test
