// The header, the records and what frames start from.
#include "formats/fli/fli_load_fixture.h"

namespace kirto::test {
namespace {

TEST_F(FliLoadTest, TakesSizeAndPauseFromTheHeader) {
    const Load load = LoadFile(FliBuilder(320, 200, FliBuilder::kFlc, 50));

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(document_.Current()->width, 320);
    EXPECT_EQ(document_.Current()->height, 200);
    EXPECT_DOUBLE_EQ(document_.Current()->pause_length, 5.0);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, CountsAnFlisSpeedInSeventiethsOfASecond) {
    LoadFile(FliBuilder(1, 1, FliBuilder::kFli, 35));

    EXPECT_DOUBLE_EQ(document_.Current()->pause_length, 50.0);
}

TEST_F(FliLoadTest, KeepsThePauseInSecondsWhereTheSettingSaysSo) {
    fixture_.prefs.global_pauseinseconds = true;

    LoadFile(FliBuilder(1, 1, FliBuilder::kFli, 7));
    EXPECT_DOUBLE_EQ(document_.Current()->pause_length, 0.1);

    LoadFile(FliBuilder(1, 1, FliBuilder::kFlc, 1500));
    EXPECT_DOUBLE_EQ(document_.Current()->pause_length, 1.5);
}

TEST_F(FliLoadTest, TakesOnlyTheLow16BitsOfTheSpeed) {
    std::vector<uint8> bytes = FliBuilder(1, 1, FliBuilder::kFlc, 65535);
    bytes[18] = 1;

    LoadFile(bytes);

    EXPECT_DOUBLE_EQ(document_.Current()->pause_length, 6553.5);
}

TEST_F(FliLoadTest, RefusesAWrongMagicNumber) {
    for (const uint16 magic : std::vector<uint16>{0xAF10, 0xAF13, 0xAF30, 0x11AF, 0xAE11}) {
        const Load load = LoadFile(FliBuilder(4, 4, magic));

        EXPECT_TRUE(load.failed) << magic;
        EXPECT_EQ(load.lines, "FliLoad::ReadFliHeader() - Wrong magic number in FLI\n") << magic;
    }
    EXPECT_EQ(document_.Current()->width, fixture_.prefs.global_width);
}

TEST_F(FliLoadTest, RefusesAFileThatIsNotReady) {
    BFile missing("/nonexistent/animation.fli", B_READ_ONLY);

    const FliLoad loader(&missing, 0, document_);

    EXPECT_TRUE(loader.failed);
}

TEST_F(FliLoadTest, FailsOnAShortHeader) {
    std::vector<uint8> bytes = FliBuilder(1, 1);
    bytes.pop_back();

    EXPECT_TRUE(LoadFile(bytes).failed);
}

// --- records ---

TEST_F(FliLoadTest, PostsTheProgressOfEachRecordBeforeReadingIt) {
    FliBuilder fli(1, 1);
    fli.Record().Black().Record().Record().Black().FrameCount(4);

    const Load load = LoadFile(fli);

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(fixture_.port->Transcript(),
              "svup(Status: loading frame 1 of 4...) tvff auns "
              "svup(Status: loading frame 2 of 4...) "
              "svup(Status: loading frame 3 of 4...) auns "
              "svup(Status: loading frame 4 of 4...)");
}

TEST_F(FliLoadTest, NeverReadsTheRingFrame) {
    FliBuilder fli(1, 1);
    fli.Record().Black().Record().Black().FrameCount(1);

    const Load load = LoadFile(fli);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(document_.FrameCount(), 1);
}

TEST_F(FliLoadTest, RefusesAWrongMagicNumberInARecord) {
    FliBuilder fli(1, 1);
    fli.Record().Black().Record(0xF1FB).Black();

    const Load load = LoadFile(fli);

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(load.lines, "FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
    EXPECT_EQ(document_.FrameCount(), 1);
}

TEST_F(FliLoadTest, RefusesAPrefixRecord) {
    FliBuilder fli(1, 1);
    fli.Record(0xF100).Record().Black();

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, ARecordWithoutChunksMakesNoFrameAndLengthensThePreviousOne) {
    FliBuilder fli(1, 1, FliBuilder::kFlc, 50);
    fli.Record().Black().Record();

    const Load load = LoadFile(fli);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.end, 1);
    ASSERT_EQ(document_.FrameCount(), 1);
    EXPECT_TRUE(document_.FrameAt(0)->use_pause);
    EXPECT_DOUBLE_EQ(document_.FrameAt(0)->pause_length, 10.0);
}

TEST_F(FliLoadTest, EachFurtherRecordWithoutChunksAddsOnePause) {
    FliBuilder fli(1, 1, FliBuilder::kFlc, 50);
    fli.Record().Black().Record().Record().Record();

    LoadFile(fli);

    EXPECT_DOUBLE_EQ(document_.FrameAt(0)->pause_length, 20.0);
}

TEST_F(FliLoadTest, AFirstRecordWithoutChunksFailsInAnEmptyDocument) {
    FliBuilder fli(1, 1);
    fli.Record().Record().Black();

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, AFirstRecordWithoutChunksLengthensTheFrameBeforeTheStart) {
    AppendFrame(document_, PictureOf(1, 1, {kRed}), "before");
    FrameEditOf(document_, 0)->use_pause = true;
    FrameEditOf(document_, 0)->pause_length = 3.0;

    const Load load = LoadFile(FliBuilder(1, 1, FliBuilder::kFlc, 50).Record(), 1);

    EXPECT_FALSE(load.failed);
    EXPECT_DOUBLE_EQ(document_.FrameAt(0)->pause_length, 8.0);
}

TEST_F(FliLoadTest, TheChunksOfASkippedRecordAreNotDrawn) {
    FliBuilder fli(2, 1);
    fli.Record().Color256(kColors).Copy({1, 2});
    fli.Record(FliBuilder::kSkipped).Black().Chunk(99, {1, 2, 3});
    fli.Record().Lc(0, {{{0, 1, {3}}}});

    const Load load = LoadFile(fli);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.lines, "");
    ASSERT_EQ(document_.FrameCount(), 2);
    EXPECT_EQ(PixelsAt(1), (Pixels{kBlue, kGreen}));
}

TEST_F(FliLoadTest, DamageInASkippedRecordIsNoFailure) {
    FliBuilder fli(1, 1);
    fli.Record().Black();
    fli.Record(FliBuilder::kSkipped).Chunk(99, {}).ChunkSize(-1000000);
    fli.Record().Black();

    const Load load = LoadFile(fli);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(document_.FrameCount(), 2);
}

TEST_F(FliLoadTest, ASkippedRecordThatRunsPastTheEndOfTheFileFailsAtTheNextRecord) {
    FliBuilder fli(1, 1);
    fli.Record().Black();
    fli.Record(FliBuilder::kSkipped).Chunk(99, {}).ChunkCount(2);

    EXPECT_FALSE(LoadFile(fli).failed);
    EXPECT_TRUE(LoadFile(fli.FrameCount(3), 1).failed);
}

TEST_F(FliLoadTest, AFileThatStartsWithASkippedRecordHasNoFrameToStartFrom) {
    FliBuilder fli(1, 1);
    fli.Record(FliBuilder::kSkipped).Record().Black();

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, FrameNamesFollowTheRecordsAndSkipNumbers) {
    FliBuilder fli(1, 1);
    fli.Record().Black().Record().Record(FliBuilder::kSkipped).Record().Black().Record().Black();

    LoadFile(fli);

    ASSERT_EQ(document_.FrameCount(), 3);
    EXPECT_EQ(document_.FrameAt(0)->name, "frame0000");
    EXPECT_EQ(document_.FrameAt(1)->name, "frame0003");
    EXPECT_EQ(document_.FrameAt(2)->name, "frame0004");
}

TEST_F(FliLoadTest, BytesOfARecordBehindItsChunksAreNotSkipped) {
    FliBuilder fli(1, 1);
    fli.Record().Black().RecordSize(16 + 6 + 4).Bytes({1, 2, 3, 4}).Record().Black();

    const Load load = LoadFile(fli);

    // The four bytes are taken for the next record's start.
    EXPECT_TRUE(load.failed);
    EXPECT_EQ(load.lines, "FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
    EXPECT_EQ(document_.FrameCount(), 1);
}

TEST_F(FliLoadTest, ARecordWhoseChunksClaimTooMuchEndsWhereItSays) {
    FliBuilder fli(1, 1);
    fli.Record().Chunk(99, {}).ChunkSize(6 + 5).Record().Black();

    EXPECT_FALSE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 2);
}

TEST_F(FliLoadTest, ARecordOfSizeZeroIsReadAgain) {
    FliBuilder fli(1, 1);
    fli.Record().Color256(kColors).Copy({1}).RecordSize(0).FrameCount(3);

    EXPECT_FALSE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 3);
    EXPECT_EQ(PixelsAt(2), Pixels{kRed});
}

TEST_F(FliLoadTest, ARecordThatLeadsBeforeTheFilesStartFails) {
    FliBuilder fli(1, 1);
    fli.Record().Black().RecordSize(-1000);

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, StopsBeforeTheNextRecordWhenAskedTo) {
    FliBuilder fli(1, 1);
    fli.Record().Black();
    document_.RequestStop();

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

// --- frames ---

TEST_F(FliLoadTest, TheFirstFrameStartsOpaqueBlack) {
    LoadFile(OneFrame(2, 1).Lc(0, {{{1, 1, {1}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kRed}));
}

TEST_F(FliLoadTest, AFrameThatDrawsNothingIsBlackAllTheSame) {
    LoadFile(OneFrame(2, 1));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kBlack}));
}

TEST_F(FliLoadTest, FramesAreCompleteRecords) {
    FliBuilder fli = OneFrame(2, 1).Copy({1, 2});

    LoadFile(fli);

    const FramePointer frame = document_.FrameAt(0);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->bitmap->ColorSpace(), B_RGB32);
    EXPECT_EQ(frame->width, 2);
    EXPECT_EQ(frame->height, 1);
    EXPECT_FALSE(frame->local_palette);
    EXPECT_FALSE(frame->use_pause);
    EXPECT_EQ(frame->palette->mode, kPaletteOptimal);
    EXPECT_EQ(frame->palette->unique_colors, 2);
}

TEST_F(FliLoadTest, LaterFramesStartFromTheOneBefore) {
    FliBuilder fli = OneFrame(3, 1).Copy({1, 2, 3});
    fli.Record().Lc(0, {{{1, 1, {4}}}});

    LoadFile(fli);

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kGreen, kBlue}));
    EXPECT_EQ(PixelsAt(1), (Pixels{kRed, kWhite, kBlue}));
}

TEST_F(FliLoadTest, AFirstFrameBehindExistingOnesStartsBlackButTakesTheirPalette) {
    const FrameHandle before = AppendFrame(document_, PictureOf(2, 1, {kRed, kGreen}), "before");
    before.Palette()->colors[7] = {1, 2, 3, 255};
    before->local_palette = true;
    FliBuilder fli(2, 1);
    fli.Record().Color256({{9, {0x00FF00}}}).Lc(0, {{{1, 1, {9}}}});

    const Load load = LoadFile(fli, 1);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.end, 2);
    EXPECT_EQ(PixelsAt(1), (Pixels{kBlack, kGreen}));
    EXPECT_TRUE(document_.FrameAt(1)->local_palette);
    EXPECT_EQ(LocalEntry(1, 7), 0xFF010203);
    EXPECT_EQ(LocalEntry(1, 9), kGreen);
    EXPECT_NE(GlobalEntry(9), kGreen);
}

TEST_F(FliLoadTest, ALocalPaletteStartsAsTheGlobalOneWhereTheFrameBeforeHasNone) {
    FliBuilder fli = OneFrame(1, 1).Copy({1});
    fli.Record().Color256({{2, {0x123456}}}).Copy({1});

    LoadFile(fli);

    ASSERT_TRUE(document_.FrameAt(1)->local_palette);
    EXPECT_EQ(LocalEntry(1, 1), kRed);
    EXPECT_EQ(LocalEntry(1, 2), 0xFF123456);
    EXPECT_EQ(GlobalEntry(2), kGreen);
}

TEST_F(FliLoadTest, ALocalPaletteIsHandedOnToLaterFrames) {
    FliBuilder fli = OneFrame(1, 1).Copy({1});
    fli.Record().Color256({{2, {0x123456}}}).Copy({2}).Record().Copy({2});

    LoadFile(fli);

    const FramePointer last = document_.FrameAt(2);
    ASSERT_TRUE(last && last->local_palette);
    EXPECT_EQ(last->palette->mode, kPaletteFromFile);
    EXPECT_EQ(last->palette->size, 256);
    EXPECT_EQ(last->palette->bits, 8);
    EXPECT_EQ(last->palette->unique_colors, 1);
    EXPECT_EQ(PixelsAt(2), Pixels{0xFF123456});
}

TEST_F(FliLoadTest, OnlyTheEntriesOfAPaletteAreCopied) {
    const FrameHandle before = AppendFrame(document_, PictureOf(1, 1, {kRed}), "before");
    before->local_palette = true;
    before.Palette()->transparent_index = 5;
    before.Palette()->use_transparent = true;
    FliBuilder fli(1, 1);
    fli.Record().Color256({{9, {1}}});

    LoadFile(fli, 1);

    EXPECT_FALSE(document_.FrameAt(1)->palette->use_transparent);
    EXPECT_EQ(document_.FrameAt(1)->palette->transparent_index, 0);
}

TEST_F(FliLoadTest, AFrameBeforeOfAnotherSizeGivesAsManyPixelsAsFit) {
    AppendFrame(document_, PictureOf(3, 1, {kRed, kGreen, kBlue}), "before");
    FliBuilder larger(2, 2);
    larger.Record(FliBuilder::kSkipped).Record().Mini({});
    FliBuilder smaller(1, 1);
    smaller.Record(FliBuilder::kSkipped).Record().Mini({});

    LoadFile(larger, 1);
    LoadFile(smaller, 1);

    EXPECT_EQ(PixelsAt(2), (Pixels{kRed, kGreen, kBlue, 0}));
    EXPECT_EQ(PixelsAt(1), Pixels{kRed});
}

TEST_F(FliLoadTest, AFrameBeforeWithoutUsablePixelsFails) {
    FliBuilder fli(1, 1);
    fli.Record(FliBuilder::kSkipped).Record().Mini({});
    AppendFrame(document_, PictureOf(1, 1, {kRed}, B_RGB32_BIG), "big endian");
    EXPECT_TRUE(LoadFile(fli, 1).failed);

    FrameEditOf(document_, 0)->bitmap =
        Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(1, 1), B_GRAY8));
    EXPECT_TRUE(LoadFile(fli, 1).failed);

    FrameEditOf(document_, 0)->bitmap =
        Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(0, 0), B_RGB32));
    EXPECT_TRUE(LoadFile(fli, 1).failed);

    FrameEditOf(document_, 0)->bitmap = nullptr;
    EXPECT_TRUE(LoadFile(fli, 1).failed);
    EXPECT_EQ(document_.FrameCount(), 1);
}

TEST_F(FliLoadTest, AStartPastTheDocumentFails) {
    EXPECT_TRUE(LoadFile(OneFrame(1, 1).Copy({1}), 5).failed);
    FliBuilder without_colors(1, 1);
    EXPECT_TRUE(LoadFile(without_colors.Record().Black(), 5).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, InsertsBetweenExistingFrames) {
    AppendFrame(document_, PictureOf(1, 1, {kRed}), "first");
    AppendFrame(document_, PictureOf(1, 1, {kRed}), "last");
    FliBuilder fli(1, 1);
    fli.Record().Black().Record().Black();

    const Load load = LoadFile(fli, 1);

    EXPECT_EQ(load.end, 3);
    EXPECT_EQ(document_.FrameAt(1)->name, "frame0000");
    EXPECT_EQ(document_.FrameAt(2)->name, "frame0001");
    EXPECT_EQ(document_.FrameAt(3)->name, "last");
}

TEST_F(FliLoadTest, APictureOfNoPixelsFails) {
    FliBuilder no_width(0, 5);
    FliBuilder no_height(5, 0);

    EXPECT_TRUE(LoadFile(no_width.Record().Black()).failed);
    EXPECT_TRUE(LoadFile(no_height.Record().Black()).failed);
}

TEST_F(FliLoadTest, APictureAboveTheDocumentsCeilingFails) {
    document_.pixel_budget->SetLimit(50 + 2 * PixelBudget::kFrameCost);
    FliBuilder fli(3, 2);
    fli.Record().Black().Record().Black().Record().Black();

    EXPECT_TRUE(LoadFile(fli).failed);
    EXPECT_EQ(document_.FrameCount(), 2);
}

TEST_F(FliLoadTest, ARecordThatChangesNothingCostsAFrameOnALargePicture) {
    for (const bool local : {false, true}) {
        DocumentFixture fixture;
        FliBuilder fli(3000, 3000);
        fli.Record().Color256(kColors).Black();
        if (local) fli.Record().Color256({{1, {0x123456}}}).Black();
        ASSERT_FALSE(LoadInto(fixture.document, fli).failed);
        const int32 before = fixture.document.FrameCount();
        const uint64 used = fixture.document.pixel_budget->Used();

        DocumentFixture longer;
        for (int32 i = 0; i < 20; ++i)
            fli.Record().Black();
        ASSERT_FALSE(LoadInto(longer.document, fli).failed);
        ASSERT_EQ(longer.document.FrameCount(), before + 20);
        EXPECT_EQ(longer.document.pixel_budget->Used(), used + 20 * PixelBudget::kFrameCost);
        const FramePointer last = longer.document.FrameAt(before + 19);
        const FramePointer first = longer.document.FrameAt(before - 1);
        EXPECT_EQ(*last->palette, *first->palette);
        EXPECT_EQ(last->palette->unique_colors, 1);
    }
}

}  // namespace
}  // namespace kirto::test
