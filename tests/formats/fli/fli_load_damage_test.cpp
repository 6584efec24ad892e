// Damaged files, and files made to harm.
#include <cstddef>
#include <filesystem>

#include "formats/fli/fli_load_fixture.h"

namespace kirto::test {
namespace {

TEST_F(FliLoadTest, ANegativeDataSizeFails) {
    for (const int32 type : {4, 7, 11, 12, 15}) {
        for (const int64 size : std::vector<int64>{5, 0, -1, -2147483648}) {
            FliBuilder fli(1, 1);
            EXPECT_TRUE(LoadFile(fli.Record().Chunk(type, {}).ChunkSize(size)).failed)
                << "type " << type << " size " << size;
        }
    }
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, ASizePastTheEndOfTheFileFails) {
    for (const int32 type : {4, 7, 11, 12, 15}) {
        for (const int64 size : {9, 2147483647}) {
            FliBuilder fli(1, 1);
            EXPECT_TRUE(LoadFile(fli.Record().Chunk(type, {0, 0}).ChunkSize(size)).failed)
                << "type " << type << " size " << size;
        }
    }
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, AnEmptyChunkDrawsNothing) {
    for (const int32 type : {4, 7, 11, 12, 15}) {
        EXPECT_FALSE(LoadFile(OneFrame(1, 1).Copy({1}).Chunk(type, {})).failed) << type;
        EXPECT_EQ(PixelsAt(0), Pixels{kRed}) << type;
        document_.Reset();
    }
}

TEST_F(FliLoadTest, ASeekPastTheEndOfTheFileSucceeds) {
    FliBuilder mini(1, 1);
    FliBuilder unknown(1, 1);

    EXPECT_FALSE(LoadFile(mini.Record().Mini({}).ChunkSize(2147483647)).failed);
    EXPECT_FALSE(LoadFile(unknown.Record().Chunk(99, {}).ChunkSize(2147483647)).failed);
}

TEST_F(FliLoadTest, ASeekBeforeTheFilesStartFails) {
    FliBuilder mini(1, 1);
    FliBuilder unknown(1, 1);

    EXPECT_TRUE(LoadFile(mini.Record().Mini({}).ChunkSize(-2147483648)).failed);
    EXPECT_TRUE(LoadFile(unknown.Record().Chunk(99, {}).ChunkSize(-2147483648)).failed);
}

TEST_F(FliLoadTest, AMissingChunkHeaderFails) {
    FliBuilder fli(1, 1);

    EXPECT_TRUE(LoadFile(fli.Record().Black().ChunkCount(2)).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

// Chunks that promise more than they hold, and the picture of 1 2 3 4 that becomes of them.
struct ShortChunk {
    const char* what;
    int32 type;
    std::vector<uint8> data;
    Pixels pixels;
};

TEST_F(FliLoadTest, AChunkEndsWhereItsBytesEndAndTheFrameStays) {
    const Pixels unchanged = {kRed, kGreen, kBlue, kWhite};
    const std::vector<ShortChunk> chunks = {
        {"LC without lines", 12, {0, 0}, unchanged},
        {"LC without packets", 12, {0, 0, 9, 0}, unchanged},
        {"LC without a packet's count", 12, {0, 0, 9, 0, 1, 0}, unchanged},
        {"LC repeat without its index", 12, {0, 0, 1, 0, 1, 0, 0xFF}, unchanged},
        {"LC literals", 12, {0, 0, 9, 0, 7, 0, 5, 4, 4}, {kWhite, kWhite, kBlue, kWhite}},
        {"BRUN without packets", 15, {1}, unchanged},
        {"BRUN repeat without its index", 15, {1, 3}, unchanged},
        {"BRUN literals", 15, {5, 0xFB, 4, 4}, {kWhite, kWhite, kBlue, kWhite}},
        {"DELTA without words", 7, {9, 0}, unchanged},
        {"DELTA with half a word", 7, {9, 0, 0xFF}, unchanged},
        {"DELTA without packets", 7, {9, 0, 0xFF, 0x7F}, unchanged},
        {"DELTA repeat without its pair", 7, {1, 0, 1, 0, 0, 0xFF, 4}, unchanged},
        {"DELTA literals", 7, {1, 0, 1, 0, 0, 2, 4, 4, 4}, {kWhite, kWhite, kWhite, kWhite}},
    };
    for (const ShortChunk& chunk : chunks) {
        const Load load = LoadFile(OneFrame(4, 1).Copy({1, 2, 3, 4}).Chunk(chunk.type, chunk.data));

        EXPECT_FALSE(load.failed) << chunk.what;
        EXPECT_EQ(PixelsAt(0), chunk.pixels) << chunk.what;
        EXPECT_TRUE(document_.FrameAt(0)->damaged) << chunk.what;
        document_.Reset();
    }
}

TEST_F(FliLoadTest, AColorThatIsCutOffIsNotStored) {
    FliBuilder fli(1, 1);
    fli.Record().Chunk(4, {0xFF, 0xFF, 0, 2, 1, 2, 3, 4, 5});

    const Load load = LoadFile(fli);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(GlobalEntry(0), 0xFF010203);
    // As before, in the web-safe palette.
    EXPECT_EQ(GlobalEntry(1), 0xFFFFFFCC);
}

TEST_F(FliLoadTest, AFailureKeepsWhatWasThereBefore) {
    AppendFrame(document_, PictureOf(1, 1, {kRed}), "before");
    FliBuilder fli(2, 1, FliBuilder::kFlc, 50);
    fli.Record().Black().Record().Chunk(12, {}).ChunkSize(0);

    const Load load = LoadFile(fli, 1);

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(load.end, 2);
    EXPECT_EQ(document_.FrameCount(), 2);
    EXPECT_EQ(document_.Current()->width, 2);
    EXPECT_DOUBLE_EQ(document_.Current()->pause_length, 5.0);
}

// A small file of every type of chunk.
FliBuilder EveryChunk() {
    FliBuilder fli = OneFrame(3, 2).BrunOf({1, 1, 1, 2, 3, 4});
    fli.Record().Color64({{1, {0x3F0000}}}).Lc(0, {{{1, 1, {1}}}, {{0, -2, {2}}}}).Mini({1, 2});
    fli.Record(FliBuilder::kSkipped).Chunk(99, {1, 2, 3});
    fli.Record().Delta({{{-1}, {{0, 1, {3, 4}}}}}).Record();
    return fli.Record().Black().Chunk(99, {5}).Copy({4, 3, 2, 1, 0, 1});
}

TEST_F(FliLoadTest, AFileCutAnywhereKeepsTheFramesBeforeTheCut) {
    const std::vector<uint8> whole = EveryChunk();
    ASSERT_FALSE(LoadFile(whole).failed);
    ASSERT_EQ(document_.FrameCount(), 4);
    std::vector<Pixels> pictures;
    for (int32 i = 0; i < 4; ++i)
        pictures.push_back(PixelsAt(i));

    int32 kept = 0;
    for (size_t size = 0; size < whole.size(); ++size) {
        document_.Reset();
        const Load load =
            LoadFile({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});

        EXPECT_TRUE(load.failed) << size;
        ASSERT_GE(document_.FrameCount(), kept) << size;
        kept = document_.FrameCount();
        ASSERT_LT(kept, 4) << size;
        for (int32 i = 0; i < kept; ++i)
            EXPECT_EQ(PixelsAt(i), pictures[static_cast<size_t>(i)]) << size;
    }
    EXPECT_EQ(kept, 3);
}

TEST_F(FliLoadTest, AFileThatShrinksWhileItIsOpenFails) {
    const TemporaryFolder folder;
    const std::string path = folder.File("shrinking.flc");
    FliBuilder fli(400, 400);
    WriteBytes(path, fli.Record().Copy(std::vector<uint8>(400 * 400, 1)));
    BFile file(path, B_READ_ONLY);
    std::filesystem::resize_file(path, 1000);

    const FliLoad loader(&file, 0, document_);

    EXPECT_TRUE(loader.failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, EachFailingAllocationEndsTheLoadWithWholeFrames) {
    const AlertRecorder alerts;
    const std::vector<uint8> whole = EveryChunk();
    bool failed = true;
    for (int64 call = 1; failed; ++call) {
        ASSERT_LT(call, 1000);
        document_.Reset();
        const AllocationFault fault(call);
        LoadFile(whole);
        failed = fault.Calls() >= call;
        for (int32 i = 0; i < document_.FrameCount(); ++i)
            EXPECT_EQ(PixelsAt(i).size(), 6u) << call;
    }
    EXPECT_EQ(document_.FrameCount(), 4);
}

TEST_F(FliLoadTest, AHugeCountOfFramesEndsAtTheFirstShortRead) {
    const Load load = LoadFile(OneFrame(1, 1).FrameCount(65535));

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(document_.FrameCount(), 1);
    EXPECT_EQ(fixture_.port->Transcript(),
              "svup(Status: loading frame 1 of 65535...) tvff auns "
              "svup(Status: loading frame 2 of 65535...)");
}

TEST_F(FliLoadTest, ChunksThatLeadBackToThemselvesEndAsIfTheFileWereCut) {
    // Each record and chunk is sound, but the chunk ends where it began, 65535 times.
    FliBuilder fli(1, 1);
    fli.Record().Black();
    for (int i = 0; i < 10; ++i)
        fli.Record(FliBuilder::kSkipped).Chunk(0, {}).ChunkSize(0).ChunkCount(65535);

    const Load load = LoadFile(fli);

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(document_.FrameCount(), 1);
}

TEST_F(FliLoadTest, ARecordThatLeadsBackToItselfGivesNoEndOfFrames) {
    FliBuilder fli(1, 1);
    fli.Record().Black().RecordSize(0).FrameCount(65535);

    const Load load = LoadFile(fli);

    EXPECT_TRUE(load.failed);
    EXPECT_LT(document_.FrameCount(), 5000);
}

TEST_F(FliLoadTest, ARecordThatLeadsBackIsNotPaidForByItsPictures) {
    for (const int32 side : {8, 100}) {
        FliBuilder fli(side, side);
        fli.Record().Black().RecordSize(0).FrameCount(65535);
        document_.Reset();

        const Load load = LoadFile(fli);

        EXPECT_TRUE(load.failed) << side;
        EXPECT_GE(document_.FrameCount(), 1) << side;
        EXPECT_LT(document_.FrameCount(), 300) << side;
    }
}

TEST_F(FliLoadTest, RecordsWhoseLastChunkClaimsTooMuchAreAllRead) {
    FliBuilder fli(20, 20);
    for (int i = 0; i < 1000; ++i) {
        // 22 bytes and what the black chunk and the sketch have, not what the sketch claims.
        fli.Record().Black().Mini({1, 2}).RecordSize(16 + 6 + 8).ChunkSize(8 + 500);
    }

    EXPECT_FALSE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 1000);
}

TEST_F(FliLoadTest, ALongSoundFileOfTheSmallestRecordsIsReadToItsEnd) {
    FliBuilder fli(1, 1);
    for (int i = 0; i < 1200; ++i)
        fli.Record().Black();

    EXPECT_FALSE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 1200);
}

TEST_F(FliLoadTest, APictureIsNotBlackenedWithoutEnd) {
    FliBuilder fli(1000, 1000);
    fli.Record();
    for (int i = 0; i < 30; ++i)
        fli.Black();

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, AHugePictureWithoutDataIsRefusedBeforeItIsFilled) {
    FliBuilder fli(65535, 65535);

    EXPECT_TRUE(LoadFile(fli.Record().Copy({1})).failed);
}

}  // namespace
}  // namespace kirto::test
