// What is loaded by the rules of players, with the setting "animation_faithful".
#include "fli_load_fixture.h"

namespace kirto::test {

namespace {

class FliPlayerLoad : public FliLoadTest {
  protected:
    FliPlayerLoad() { fixture_.prefs.animation_faithful = true; }
};

}  // namespace

TEST_F(FliPlayerLoad, RecordsThatAreNoFramesAreSkippedByTheirSize) {
    FliBuilder file(2, 1);
    file.Record(0xF100).ChunkCount(7).Bytes({1, 2, 3}).RecordSize(19);
    file.Record().Color256(kColors).Copy({1, 2});
    file.Record(0x1234).Chunk(9, {1, 2, 3, 4});
    file.Record(FliBuilder::kSkipped).Chunk(9, {1, 2});
    file.Record().Copy({3, 4}).FrameCount(2);

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(document_.FrameCount(), 2);
    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kGreen}));
    EXPECT_EQ(PixelsAt(1), (Pixels{kBlue, kWhite}));
}

TEST_F(FliPlayerLoad, ChunksEndWhereTheySay) {
    FliBuilder file = OneFrame(2, 1);
    file.Copy({1, 2}).Bytes({9, 9, 9}).ChunkSize(6 + 2 + 3).RecordSize(16 + 6 + 4 + 15 + 11 + 20);
    file.Chunk(99, {1, 2, 3});
    file.Lc(0, {{{1, 1, {3}}}});

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kBlue}));
}

TEST_F(FliPlayerLoad, ACopyWithoutAllOfItsPixelsDamagesItsFrameOnly) {
    FliBuilder file(2, 1);
    file.Record().Color256(kColors).Copy({1, 2});
    file.Record().Copy({3});
    file.Record().Copy({3, 4});

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(PixelsAt(1), (Pixels{kBlue, kGreen}));
    EXPECT_FALSE(document_.FrameAt(0)->damaged);
    EXPECT_TRUE(document_.FrameAt(1)->damaged);
    EXPECT_FALSE(document_.FrameAt(2)->damaged);
}

TEST_F(FliPlayerLoad, ColorsHoldForThePictureAsAWholeWhereverTheyStand) {
    FliBuilder file(2, 1);
    file.Record().Copy({1, 2}).Color256(kColors);
    file.Record().Color256({{1, {0xFFFFFF}}});
    file.Record().Lc(0, {{{1, 1, {1}}}});

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kGreen}));
    EXPECT_EQ(PixelsAt(1), (Pixels{kWhite, kGreen}));
    EXPECT_EQ(PixelsAt(2), (Pixels{kWhite, kWhite}));
    EXPECT_TRUE(document_.FrameAt(1)->local_palette);
}

TEST_F(FliPlayerLoad, ANewPaletteSharesTheIndicesOfThePictureBefore) {
    FliBuilder file(64, 64);
    std::vector<uint8> indices(64 * 64);
    for (size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<uint8>(i % 5);
    file.Record().Color256(kColors).Copy(indices);
    file.Record().Color256({{1, {0xFFFFFF}}});

    EXPECT_FALSE(LoadFile(file).failed);
    const Picture& first = *document_.FrameAt(0)->bitmap;
    const Picture& second = *document_.FrameAt(1)->bitmap;
    EXPECT_EQ(first.AllStrips()[0]->Indices(), second.AllStrips()[0]->Indices());
    EXPECT_NE(PixelsAt(0), PixelsAt(1));
}

TEST_F(FliPlayerLoad, BlackIsWhatIndexZeroStandsForAndSixBitsReachFullBrightness) {
    FliBuilder file(1, 1);
    file.Record().Color64({{0, {0x3F0001}}}).Black();

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(PixelsAt(0), Pixels{0xFFFF0004});
}

TEST_F(FliPlayerLoad, RowsOfRunsEndAtTheirWidth) {
    FliBuilder file = OneFrame(2, 2);
    // The count of packets says nothing.
    file.Chunk(15, {0, 2, 1, 9, 1, 2, 0xFF, 3});

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kRed, kGreen, kBlue}));
}

TEST_F(FliPlayerLoad, ADeltaWordMaySetTheLastPixelOfALine) {
    FliBuilder file = OneFrame(3, 2);
    file.Delta({{{0xFFFF, 0x8003}, {{0, 1, {1, 2}}}}});

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kBlack, kBlack, kRed, kGreen, kBlue}));
}

TEST_F(FliPlayerLoad, WhatComesBehindTheLastFrameIsLeftOut) {
    FliBuilder file = OneFrame(1, 1);
    file.Copy({1}).Record().Copy({2}).Record().Copy({1}).FrameCount(2);

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(document_.FrameCount(), 2);
}

TEST_F(FliPlayerLoad, TheSpeedBecomesThePauseOfAllFrames) {
    const struct {
        uint16 magic;
        int32 speed;
        double pause;
    } cases[] = {{FliBuilder::kFli, 7, 10.0},
                 {FliBuilder::kFli, 5, 500 / 70.0},
                 {FliBuilder::kFlc, 70, 7.0},
                 {FliBuilder::kFlc, 33, 3.3}};
    for (const auto& [magic, speed, pause] : cases) {
        EXPECT_FALSE(LoadFile(FliBuilder(1, 1, magic, speed).Record().Black()).failed);
        EXPECT_TRUE(document_.Current()->use_pause);
        EXPECT_EQ(document_.Current()->pause_length, pause);
    }
}

TEST_F(FliPlayerLoad, AnEmptyRecordLengthensTheFrameBeforeOrShowsAnEmptyScreen) {
    FliBuilder file(1, 1);
    file.Record().Record().Record().Color256(kColors).Copy({1});

    EXPECT_FALSE(LoadFile(file).failed);
    EXPECT_EQ(document_.FrameCount(), 2);
    EXPECT_EQ(document_.FrameAt(0)->pause_length, 20);
    EXPECT_EQ(PixelsAt(1), Pixels{kRed});
}

TEST_F(FliPlayerLoad, ARecordWithoutAProperSizeEndsTheFile) {
    FliBuilder file = OneFrame(1, 1);
    file.Copy({1}).Record().RecordSize(15);

    EXPECT_TRUE(LoadFile(file).failed);
    EXPECT_EQ(document_.FrameCount(), 1);
}

TEST_F(FliPlayerLoad, DrawsWhatAPlainDecoderDrawsBehindExistingFrames) {
    FliBuilder file(2, 1);
    file.Record().Color256(kColors).Copy({1, 2}).Record().Lc(0, {{{0, 1, {3}}}});
    LoadFile(file);

    EXPECT_FALSE(LoadFile(file, 2).failed);
    EXPECT_EQ(PixelsAt(2), (Pixels{kRed, kGreen}));
    EXPECT_EQ(PixelsAt(3), (Pixels{kBlue, kGreen}));
}

}  // namespace kirto::test
