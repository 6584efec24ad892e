// The blocks around the images: header, extensions, and the order of the whole file.
#include <gmock/gmock.h>

#include "formats/gif/gif_load_fixture.h"
#include "support/port_watcher.h"

namespace kirto::test {
namespace {

using testing::ElementsAre;

using GifLoadBlocks = GifLoadTest;

// The bytes from the first one on, so many.
std::vector<uint8> Start(const std::vector<uint8>& bytes, size_t count) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

std::vector<uint8> Text(const std::string& text) {
    return {text.begin(), text.end()};
}

// An application extension up to its sub-blocks.
std::vector<uint8> Application(const std::string& identifier) {
    std::vector<uint8> bytes = {0x21, 0xFF, static_cast<uint8>(identifier.size())};
    const std::vector<uint8> text = Text(identifier);
    bytes.insert(bytes.end(), text.begin(), text.end());
    return bytes;
}

TEST_F(GifLoadBlocks, TheScreenGivesTheDocumentItsSize) {
    EXPECT_TRUE(Load(GifBuilder(0x1234, 0xABCD, kFourColors).Trailer()));

    EXPECT_EQ(document.Current()->width, 0x1234);
    EXPECT_EQ(document.Current()->height, 0xABCD);
    EXPECT_EQ(document.FrameCount(), 0);
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadBlocks, AnUnknownSignatureWithASaneScreenDecodes) {
    for (const char* signature : {"GIF87a", "GIF89a", "NOGIF!"}) {
        document.Reset();
        GifBuilder gif(2, 1, kFourColors, 0, signature);
        EXPECT_TRUE(Load(gif.Add(ImageOf(2, 1, {1, 2})).Trailer())) << signature;
        EXPECT_THAT(Pixels(0), ElementsAre(kRed, kGreen)) << signature;
    }
}

TEST_F(GifLoadBlocks, AHeaderThatIsCutShortChangesNothing) {
    const std::vector<uint8> header = GifBuilder(2, 1);
    for (size_t size = 0; size < header.size(); ++size) {
        EXPECT_FALSE(Load(Start(header, size))) << size;
        EXPECT_EQ(document.Current()->width, 320);
        EXPECT_EQ(document.Current()->height, 240);
    }
}

TEST_F(GifLoadBlocks, TheGlobalTableBecomesTheGlobalPalette) {
    PaletteEditOf(document)->Set(kPaletteGreyscale);

    EXPECT_TRUE(Load(FourColorGif(2, 1, 3).Trailer()));

    EXPECT_EQ(GlobalPalette().mode, kPaletteFromFile);
    EXPECT_EQ(GlobalPalette().bits, 2);
    EXPECT_EQ(GlobalPalette().size, 4);
    EXPECT_EQ(GlobalPalette().background_index, 3);
    EXPECT_EQ(GlobalPalette().colors[1], (rgb_color{255, 0, 0, 255}));
    EXPECT_EQ(GlobalPalette().colors[3], (rgb_color{0, 0, 255, 255}));
    // Entries that the file does not give stay.
    EXPECT_EQ(GlobalPalette().colors[4], (rgb_color{4, 4, 4, 255}));
}

TEST_F(GifLoadBlocks, ReadsGlobalTablesOfEverySize) {
    for (int32 bits = 1; bits <= 8; ++bits) {
        const std::vector<uint32> table(size_t{1} << bits, 0x010203);
        EXPECT_TRUE(Load(GifBuilder(1, 1, table).Trailer()));
        EXPECT_EQ(GlobalPalette().bits, bits);
        EXPECT_EQ(GlobalPalette().size, 1 << bits);
        EXPECT_EQ(GlobalPalette().colors[table.size() - 1], (rgb_color{1, 2, 3, 255}));
    }
}

TEST_F(GifLoadBlocks, AGlobalTableThatIsCutShortFailsAndGivesNoColour) {
    PaletteEditOf(document)->Set(kPaletteGreyscale);

    EXPECT_FALSE(Load(Start(FourColorGif(2, 1, 3), 13 + 11)));

    EXPECT_EQ(GlobalPalette().mode, kPaletteFromFile);
    EXPECT_EQ(GlobalPalette().colors[1], (rgb_color{1, 1, 1, 255}));
    EXPECT_EQ(GlobalPalette().background_index, 0);
}

TEST_F(GifLoadBlocks, WithoutAGlobalTableTheGlobalPaletteIsWebSafe) {
    PaletteEditOf(document)->Set(kPaletteGreyscale);
    PaletteEditOf(document)->background_index = 7;

    EXPECT_TRUE(Load(GifBuilder(2, 1, {}, 99).Trailer()));

    EXPECT_EQ(GlobalPalette().mode, kPaletteWebSafe);
    EXPECT_EQ(GlobalPalette().colors, kWebSafeColors);
    EXPECT_EQ(GlobalPalette().bits, 8);
    EXPECT_EQ(GlobalPalette().background_index, 7);
}

TEST_F(GifLoadBlocks, EveryLoadSwitchesPauseAndLoopOffButKeepsTheLoopCount) {
    EditOf(document)->use_pause = true;
    EditOf(document)->pause_length = 50;
    EditOf(document)->use_loop = true;
    EditOf(document)->loop_count = 7;

    EXPECT_TRUE(Load(FourColorGif(2, 1).Trailer()));

    EXPECT_FALSE(document.Current()->use_pause);
    EXPECT_EQ(document.Current()->pause_length, 0);
    EXPECT_FALSE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->loop_count, 7);
}

TEST_F(GifLoadBlocks, PauseAndLoopAreSwitchedOffEvenForAnEmptyFile) {
    EXPECT_FALSE(Load({}));

    EXPECT_FALSE(document.Current()->use_pause);
    EXPECT_FALSE(document.Current()->use_loop);
}

TEST_F(GifLoadBlocks, ALoopBlockGivesTheLoopCount) {
    EXPECT_TRUE(Load(FourColorGif(2, 1).Loop(0xABCD).Trailer()));

    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->loop_count, 0xABCD);
}

TEST_F(GifLoadBlocks, TheLastOfSeveralLoopBlocksCounts) {
    EXPECT_TRUE(Load(FourColorGif(2, 1).Loop(5).Loop(9).Trailer()));

    EXPECT_EQ(document.Current()->loop_count, 9);
}

TEST_F(GifLoadBlocks, OtherApplicationsAreSkipped) {
    GifBuilder gif = FourColorGif(2, 1);
    for (const char* identifier : {"ANIMEXTS1.0", "NETSCAPE2.", "NETSCAPE2.00", "netscape2.0", ""})
        gif.Bytes(Application(identifier)).Bytes({3, 1, 5, 0, 0});

    EXPECT_TRUE(Load(gif.Loop(3).Trailer()));

    EXPECT_EQ(document.Current()->loop_count, 3);
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadBlocks, AnIdentifierOf255BytesIsSkipped) {
    EXPECT_TRUE(Load(FourColorGif(2, 1)
                         .Bytes(Application("NETSCAPE2.0" + std::string(244, 'x')))
                         .Bytes({0})
                         .Trailer()));

    EXPECT_FALSE(document.Current()->use_loop);
}

TEST_F(GifLoadBlocks, AnIdentifierWithItsTerminatingZeroIsALoopBlock) {
    EXPECT_TRUE(Load(FourColorGif(2, 1)
                         .Bytes(Application(std::string("NETSCAPE2.0\0", 12)))
                         .Bytes({3, 1, 5, 0, 0})
                         .Trailer()));

    EXPECT_EQ(document.Current()->loop_count, 5);
}

TEST_F(GifLoadBlocks, LoopCountBytesThatTheSubBlockLacksAreZero) {
    const std::vector<uint8> name = Application("NETSCAPE2.0");
    // The byte behind the sub-block is taken for its terminator, whatever it is.
    EXPECT_TRUE(Load(FourColorGif(2, 1).Bytes(name).Bytes({2, 1, 5, 0xEE}).Trailer()));
    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->loop_count, 5);

    EXPECT_TRUE(Load(FourColorGif(2, 1).Bytes(name).Bytes({1, 1, 0xEE}).Trailer()));
    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->loop_count, 0);

    EXPECT_TRUE(Load(FourColorGif(2, 1).Bytes(name).Bytes({0, 0xEE}).Trailer()));
    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->loop_count, 0);
}

TEST_F(GifLoadBlocks, ALongLoopSubBlockIsReadWhole) {
    std::vector<uint8> sub_block(257, 0xEE);
    sub_block[0] = 255;
    sub_block[2] = 4;
    sub_block[3] = 1;

    EXPECT_TRUE(
        Load(FourColorGif(2, 1).Bytes(Application("NETSCAPE2.0")).Bytes(sub_block).Trailer()));

    EXPECT_EQ(document.Current()->loop_count, 0x104);
}

TEST_F(GifLoadBlocks, ALoopBlockThatIsCutShortFailsAndSetsNoLoop) {
    const std::vector<uint8> header = FourColorGif(2, 1);
    const std::vector<uint8> loop = FourColorGif(2, 1).Loop(5);
    for (size_t size = header.size(); size < loop.size(); ++size) {
        EXPECT_FALSE(Load(Start(loop, size))) << size;
        EXPECT_FALSE(document.Current()->use_loop) << size;
    }
}

TEST_F(GifLoadBlocks, AControlBlockGivesTheNextFrameItsDelay) {
    EXPECT_TRUE(Load(FourColorGif(1, 1)
                         .Control(0, 0xABCD)
                         .Add(ImageOf(1, 1, {1}))
                         .Add(ImageOf(1, 1, {2}))
                         .Trailer()));

    EXPECT_EQ(FrameOf(0).pause_length, 0xABCD);
    EXPECT_TRUE(FrameOf(0).use_pause);
    EXPECT_EQ(FrameOf(1).pause_length, 0);
    EXPECT_FALSE(FrameOf(1).use_pause);
}

TEST_F(GifLoadBlocks, ADelayOfZeroIsNoDelay) {
    EXPECT_TRUE(
        Load(FourColorGif(1, 1).Control(0, 10).Control(0, 0).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_EQ(FrameOf(0).pause_length, 0);
    EXPECT_FALSE(FrameOf(0).use_pause);
}

TEST_F(GifLoadBlocks, AControlBlockSetsTheTransparentIndexAndNeverClearsIt) {
    EXPECT_TRUE(Load(FourColorGif(1, 1).Control(0, 0).Trailer()));
    EXPECT_FALSE(GlobalPalette().use_transparent);

    EXPECT_TRUE(Load(FourColorGif(1, 1).Control(0, 0, 200).Control(0, 0).Trailer()));
    EXPECT_TRUE(GlobalPalette().use_transparent);
    EXPECT_EQ(GlobalPalette().transparent_index, 200);
}

TEST_F(GifLoadBlocks, SizeUserInputAndTerminatorOfAControlBlockAreNotChecked) {
    EXPECT_TRUE(Load(FourColorGif(1, 1)
                         .Bytes({0x21, 0xF9, 99, 0xE2, 7, 0, 0, 99})
                         .Add(ImageOf(1, 1, {1}))
                         .Trailer()));

    EXPECT_EQ(FrameOf(0).pause_length, 7);
    EXPECT_FALSE(GlobalPalette().use_transparent);
}

TEST_F(GifLoadBlocks, AControlBlockThatIsCutShortFailsAndSetsNothing) {
    const std::vector<uint8> header = FourColorGif(1, 1);
    const std::vector<uint8> control = FourColorGif(1, 1).Control(2, 5, 3);
    for (size_t size = header.size(); size < control.size(); ++size) {
        EXPECT_FALSE(Load(Start(control, size))) << size;
        EXPECT_FALSE(GlobalPalette().use_transparent) << size;
    }
}

TEST_F(GifLoadBlocks, ACommentIsPrinted) {
    EXPECT_TRUE(Load(FourColorGif(1, 1).Comment("100 % sunny").Trailer()));

    EXPECT_EQ(debug_text, "GifLoad::ReadGifCommentBlock() - Found:\n100 % sunny\n");
}

TEST_F(GifLoadBlocks, TheSubBlocksOfACommentArePrintedAsOneText) {
    EXPECT_TRUE(Load(FourColorGif(1, 1).Comment(std::string(600, 'x')).Trailer()));

    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifCommentBlock() - Found:\n" + std::string(600, 'x') + "\n");
}

TEST_F(GifLoadBlocks, ASubBlockOfACommentIsPrintedUpToItsFirstZero) {
    EXPECT_TRUE(
        Load(FourColorGif(1, 1).Bytes({0x21, 0xFE, 3, 'a', 0, 'b', 2, 'c', 'd', 0}).Trailer()));

    EXPECT_EQ(debug_text, "GifLoad::ReadGifCommentBlock() - Found:\nacd\n");
}

TEST_F(GifLoadBlocks, AnEmptyCommentIsPrintedAsAnEmptyLine) {
    EXPECT_TRUE(Load(FourColorGif(1, 1).Comment("").Trailer()));

    EXPECT_EQ(debug_text, "GifLoad::ReadGifCommentBlock() - Found:\n\n");
}

TEST_F(GifLoadBlocks, ACommentThatIsCutShortFails) {
    const GifBuilder header = FourColorGif(1, 1);
    for (const std::vector<uint8>& tail : {std::vector<uint8>{0x21, 0xFE}, {0x21, 0xFE, 2, 'a'}}) {
        EXPECT_FALSE(Load(GifBuilder(header).Bytes(tail)));
        EXPECT_EQ(debug_text, "GifLoad::ReadGifCommentBlock() - Found:\n");
    }
}

TEST_F(GifLoadBlocks, UnknownExtensionsArePrintedAndSkipped) {
    EXPECT_TRUE(Load(FourColorGif(1, 1)
                         .Bytes({0x21, 0x01, 2, 0xAA, 0xBB, 1, 0xCC, 0})
                         .Bytes({0x21, 0x00, 0})
                         .Add(ImageOf(1, 1, {1}))
                         .Trailer()));

    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifUnknownBlock() - Found: 1\n"
              "GifLoad::ReadGifUnknownBlock() - Found: 0\n");
    EXPECT_EQ(document.FrameCount(), 1);
}

TEST_F(GifLoadBlocks, AnUnknownIntroducerIsSkippedLikeAnExtensionOfThatLabel) {
    EXPECT_TRUE(
        Load(FourColorGif(1, 1).Bytes({0xF9, 1, 0xAA, 0}).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_EQ(debug_text, "GifLoad::ReadGifUnknownBlock() - Found: 249\n");
    EXPECT_EQ(document.FrameCount(), 1);
}

TEST_F(GifLoadBlocks, AnUnknownExtensionThatIsCutShortFails) {
    for (const std::vector<uint8>& tail :
         {std::vector<uint8>{0x21}, {0x21, 0x01}, {0x21, 0x01, 5}, {0x21, 0x01, 5, 1, 2}, {0x42}}) {
        EXPECT_FALSE(Load(FourColorGif(1, 1).Bytes(tail)));
    }
}

TEST_F(GifLoadBlocks, StrayTerminatorsBetweenBlocksAreIgnored) {
    EXPECT_TRUE(
        Load(FourColorGif(1, 1).Bytes({0, 0}).Add(ImageOf(1, 1, {1})).Bytes({0, 0, 0}).Trailer()));

    EXPECT_EQ(document.FrameCount(), 1);
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadBlocks, NothingBehindTheTrailerIsRead) {
    EXPECT_TRUE(
        Load(FourColorGif(1, 1).Trailer().Add(ImageOf(1, 1, {1})).Bytes({0x21, 0xF9, 0xFF})));

    EXPECT_EQ(document.FrameCount(), 0);
}

TEST_F(GifLoadBlocks, WithoutATrailerTheLoadFailsAndTheFramesStay) {
    EXPECT_FALSE(Load(FourColorGif(1, 1).Add(ImageOf(1, 1, {1})).Add(ImageOf(1, 1, {2}))));

    EXPECT_EQ(document.FrameCount(), 2);
    EXPECT_THAT(Pixels(1), ElementsAre(kGreen));
}

TEST_F(GifLoadBlocks, FramesAreNumberedAndNamedFromZero) {
    EXPECT_TRUE(Load(FourColorGif(1, 1).Add(ImageOf(1, 1, {1})).Add(ImageOf(1, 1, {2})).Trailer()));

    EXPECT_EQ(FrameOf(0).name, "frame0000");
    EXPECT_EQ(FrameOf(1).name, "frame0001");
    EXPECT_EQ(document.Selected(), 0);
    EXPECT_FALSE(document.Modified());
    EXPECT_EQ(end, 2);
}

TEST_F(GifLoadBlocks, FramesAreInsertedFromTheGivenPositionOn) {
    AppendFrame(document, PictureOf(1, 1, {kBlack}), "before");
    AppendFrame(document, PictureOf(1, 1, {kBlack}), "after");

    EXPECT_TRUE(
        Load(FourColorGif(1, 1).Add(ImageOf(1, 1, {1})).Add(ImageOf(1, 1, {2})).Trailer(), 1));

    EXPECT_EQ(end, 3);
    std::vector<std::string> names;
    for (int32 i = 0; i < document.FrameCount(); ++i)
        names.push_back(FrameOf(i).name);
    EXPECT_THAT(names, ElementsAre("before", "frame0001", "frame0002", "after"));
}

TEST_F(GifLoadBlocks, APositionOutsideTheListFailsAtTheFirstImage) {
    for (const int32 start : {-1, 1}) {
        EXPECT_FALSE(Load(FourColorGif(1, 1).Add(ImageOf(1, 1, {1})).Trailer(), start));
        EXPECT_EQ(document.FrameCount(), 0);
        EXPECT_EQ(end, start);
    }
}

TEST_F(GifLoadBlocks, TheStatusLineIsToldEachFrameBeforeItIsRead) {
    AppendFrame(document, PictureOf(1, 1, {kBlack}), "before");
    EXPECT_FALSE(Load(FourColorGif(1, 1).Add(ImageOf(1, 1, {1})).Bytes({0x2C}), 1));

    EXPECT_EQ(fixture.port->Transcript(),
              "tvff auns "
              "svup(Status: loading frame 2...) auns "
              "svup(Status: loading frame 3...)");
}

TEST_F(GifLoadBlocks, ARequestToStopEndsTheLoadWithinAnImage) {
    // The image's status text is the first message.
    document.window =
        BMessenger(std::make_shared<PortWatcher>([this](uint32) { document.RequestStop(); }));

    EXPECT_FALSE(Load(FourColorGif(1, 1).Loop(3).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(document.FrameCount(), 0);
}

}  // namespace
}  // namespace kirto::test
