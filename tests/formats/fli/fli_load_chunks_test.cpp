// What each type of chunk draws.
#include "formats/fli/fli_load_fixture.h"

namespace kirto::test {
namespace {

TEST_F(FliLoadTest, TheFirstFramesColorsBecomeTheGlobalPalette) {
    const Load load = LoadFile(OneFrame(1, 1).Copy({4}));

    EXPECT_FALSE(load.failed);
    EXPECT_FALSE(document_.FrameAt(0)->local_palette);
    EXPECT_EQ(document_.Current()->palette->mode, kPaletteFromFile);
    EXPECT_EQ(document_.Current()->palette->size, 256);
    EXPECT_EQ(document_.Current()->palette->bits, 8);
    EXPECT_EQ(GlobalEntry(1), kRed);
    EXPECT_EQ(PixelsAt(0), Pixels{kWhite});
}

TEST_F(FliLoadTest, ColorPacketsGoOnWhereTheOneBeforeEnded) {
    FliBuilder fli(1, 1);
    fli.Record().Color256({{1, {0x000001, 0x000002}}, {3, {0x000003}}});

    LoadFile(fli);

    EXPECT_EQ(GlobalEntry(1), 0xFF000001);
    EXPECT_EQ(GlobalEntry(2), 0xFF000002);
    EXPECT_EQ(GlobalEntry(6), 0xFF000003);
}

TEST_F(FliLoadTest, AColorCountOfZeroMeansAll256) {
    std::vector<uint32> colors;
    for (uint32 i = 0; i < 256; ++i)
        colors.push_back(i << 16 | 0x000055);
    FliBuilder fli(1, 1);
    fli.Record().Color256({{0, colors}});

    LoadFile(fli);

    EXPECT_EQ(GlobalEntry(0), 0xFF000055);
    EXPECT_EQ(GlobalEntry(255), 0xFFFF0055);
}

TEST_F(FliLoadTest, ColorsPastTheLastEntryAreDropped) {
    FliBuilder fli(1, 1);
    fli.Record().Color256({{255, {0x000001, 0x000002}}, {200, {0x000003}}, {55, {0x000004}}});

    const Load load = LoadFile(fli);

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(GlobalEntry(255), 0xFF000001);
    EXPECT_EQ(GlobalEntry(0), kWhite);  // as before, in the web-safe palette
}

TEST_F(FliLoadTest, ASixBitComponentOf63Becomes252) {
    FliBuilder fli(1, 1);
    fli.Record().Color64({{0, {0x3F0100}}});

    LoadFile(fli);

    EXPECT_EQ(GlobalEntry(0), 0xFFFC0400);
}

TEST_F(FliLoadTest, ASixBitComponentAbove63KeepsTheLowByte) {
    FliBuilder fli(1, 1);
    fli.Record().Color64({{0, {0x40417F}}});

    LoadFile(fli);

    EXPECT_EQ(GlobalEntry(0), 0xFF0004FC);
}

TEST_F(FliLoadTest, APaletteChangeDoesNotRecolourDrawnPixels) {
    FliBuilder fli = OneFrame(2, 1).Copy({1, 1}).Color256({{1, {0x00FF00}}}).Lc(0, {{{1, 1, {1}}}});

    LoadFile(fli);

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kGreen}));
}

TEST_F(FliLoadTest, ASecondColorChunkGoesOnWithTheFramesPalette) {
    FliBuilder fli = OneFrame(1, 1).Copy({1});
    fli.Record().Color256({{1, {0x000011}}}).Color256({{2, {0x000022}}});

    LoadFile(fli);

    EXPECT_EQ(LocalEntry(1, 1), 0xFF000011);
    EXPECT_EQ(LocalEntry(1, 2), 0xFF000022);
}

TEST_F(FliLoadTest, LcDrawsLiteralsAndRepeatsBehindSkips) {
    FliBuilder fli = OneFrame(5, 3);
    fli.Lc(1, {{{1, 2, {1, 2}}, {1, -1, {3}}}, {{0, 0, {}}, {2, -3, {4}}}});

    LoadFile(fli);

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kBlack, kBlack, kBlack, kBlack,  //
                                   kBlack, kRed, kGreen, kBlack, kBlue,     //
                                   kBlack, kBlack, kWhite, kWhite, kWhite}));
}

TEST_F(FliLoadTest, AnLcLineWithoutPacketsStaysUnchanged) {
    LoadFile(OneFrame(1, 3).Copy({1, 1, 1}).Lc(0, {{{0, 1, {2}}}, {}, {{0, 1, {3}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kGreen, kRed, kBlue}));
}

TEST_F(FliLoadTest, AnLcRunPastTheRowsEndGoesOnInTheNextRow) {
    LoadFile(OneFrame(2, 2).Lc(0, {{{1, -2, {1}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kRed, kRed, kBlack}));
}

TEST_F(FliLoadTest, WhatPassesThePicturesEndIsDropped) {
    const Load load = LoadFile(OneFrame(2, 1).Lc(0, {{{1, 3, {1, 2, 3}}, {255, -128, {2}}}}));

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kRed}));
}

TEST_F(FliLoadTest, LinesBelowThePictureWriteNothing) {
    const Load load = LoadFile(OneFrame(1, 1).Lc(65535, {{{0, 1, {1}}}, {{0, 1, {1}}}}));

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(PixelsAt(0), Pixels{kBlack});
}

TEST_F(FliLoadTest, BrunDrawsLiteralsAndRepeats) {
    LoadFile(OneFrame(4, 2).Brun({{{0, 3, {1}}, {0, -1, {2}}}, {{0, -4, {4, 3, 2, 1}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kRed, kRed, kGreen, kWhite, kBlue, kGreen, kRed}));
}

TEST_F(FliLoadTest, ABrunRepeatOfZeroTakesItsIndexAndDrawsNothing) {
    LoadFile(OneFrame(2, 1).Brun({{{0, 0, {4}}, {0, 2, {1}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kRed}));
}

TEST_F(FliLoadTest, BrunRowsAreNotAlignedAnew) {
    LoadFile(OneFrame(2, 2).Brun({{{0, 1, {1}}}, {{0, 2, {2}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kGreen, kGreen, kBlack}));
}

TEST_F(FliLoadTest, ABrunPacketCountIsTrusted) {
    // A count of 0 says that the row has no packets, though the row's packets follow.
    LoadFile(OneFrame(2, 2).Chunk(15, {0, 1, 2, 3}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlue, kBlue, kBlack, kBlack}));
}

TEST_F(FliLoadTest, ABrunChunkEndsWithTheLastRow) {
    LoadFile(OneFrame(2, 1).Brun({{{0, 1, {1}}}, {{0, 1, {2}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kBlack}));
}

TEST_F(FliLoadTest, CopyTakesOneIndexAPixel) {
    LoadFile(OneFrame(2, 2).Copy({1, 2, 3, 4}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kRed, kGreen, kBlue, kWhite}));
}

TEST_F(FliLoadTest, CopyDoesNotUseTheChunksSize) {
    LoadFile(OneFrame(2, 1).Copy({1, 2}).ChunkSize(-5).Lc(0, {{{0, 1, {3}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlue, kGreen}));
}

TEST_F(FliLoadTest, CopyFailsOnMissingPixels) {
    EXPECT_TRUE(LoadFile(OneFrame(2, 2).Copy({1, 2, 3})).failed);
    EXPECT_EQ(document_.FrameCount(), 0);
}

TEST_F(FliLoadTest, DeltaDrawsWordsOfTwoPixels) {
    FliBuilder fli = OneFrame(6, 2);
    fli.Delta({{{}, {{1, 2, {1, 2, 3, 4}}}}, {{}, {{0, -2, {1, 2}}, {1, 0, {}}}}});

    LoadFile(fli);

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kRed, kGreen, kBlue, kWhite, kBlack,  //
                                   kRed, kGreen, kRed, kGreen, kBlack, kBlack}));
}

TEST_F(FliLoadTest, ANegativeDeltaWordSkipsLinesWithoutCountingThem) {
    LoadFile(OneFrame(2, 4).Delta({{{-1}, {{0, 1, {1, 1}}}}, {{-1}, {{0, 1, {2, 2}}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kBlack, kRed, kRed, kBlack, kBlack, kGreen, kGreen}));
}

TEST_F(FliLoadTest, ADeltaWordWithTheTopBits10SkipsLinesToo) {
    // Others would set the last pixel of the first line to 1.
    LoadFile(OneFrame(1, 1).Copy({2}).Delta({{{0x8001}, {{0, 1, {4, 4}}}}}));

    EXPECT_EQ(PixelsAt(0), Pixels{kGreen});
}

TEST_F(FliLoadTest, ADeltaPairPastTheRowsEndGoesOnInTheNextRow) {
    LoadFile(OneFrame(3, 2).Delta({{{}, {{2, 1, {1, 2}}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kBlack, kRed, kGreen, kBlack, kBlack}));
}

TEST_F(FliLoadTest, ADeltaPairIsCutAtThePicturesEnd) {
    LoadFile(OneFrame(3, 1).Delta({{{}, {{2, -3, {1, 2}}}}}));

    EXPECT_EQ(PixelsAt(0), (Pixels{kBlack, kBlack, kRed}));
}

TEST_F(FliLoadTest, DeltaLinesFarBelowThePictureWriteNothing) {
    const std::vector<int32> words(1000, -32768);

    EXPECT_FALSE(LoadFile(OneFrame(1, 1).Delta({{words, {{0, 1, {1, 1}}}}})).failed);

    EXPECT_EQ(PixelsAt(0), Pixels{kBlack});
}

TEST_F(FliLoadTest, BlackMakesEveryPixelOpaqueBlack) {
    FliBuilder fli = OneFrame(2, 1).Copy({1, 2});
    fli.Record().Black();
    fli.Record().Copy({1, 2}).Black().Lc(0, {{{0, 1, {3}}}});

    LoadFile(fli);

    EXPECT_EQ(PixelsAt(1), (Pixels{kBlack, kBlack}));
    EXPECT_EQ(PixelsAt(2), (Pixels{kBlue, kBlack}));
}

TEST_F(FliLoadTest, MiniIsSkipped) {
    const Load load = LoadFile(OneFrame(1, 1).Mini({1, 2, 3}).Copy({1}));

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.lines, "");
    EXPECT_EQ(PixelsAt(0), Pixels{kRed});
}

TEST_F(FliLoadTest, AnUnknownChunkIsReportedAndSkipped) {
    const Load load = LoadFile(OneFrame(1, 1).Chunk(0x1F, {1, 2, 3, 4, 5}).Copy({1}));

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.lines, "FliLoad::ReadFliFrameData() - Unknown chunk type: 0x1f, seeking 0xb\n");
    EXPECT_EQ(PixelsAt(0), Pixels{kRed});
}

TEST_F(FliLoadTest, AnUnknownChunksSizeIsPrintedAsItStands) {
    const Load load = LoadFile(OneFrame(1, 1).Chunk(99, {}).ChunkSize(-2000000));

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(load.lines,
              "FliLoad::ReadFliFrameData() - Unknown chunk type: 0x63, seeking 0xffe17b80\n");
}

}  // namespace
}  // namespace kirto::test
