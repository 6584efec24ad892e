// What is loaded by the rules of browsers, with the setting "animation_faithful".
#include <gtest/gtest.h>

#include "animation/gif_source.h"
#include "formats/gif/gif_load_fixture.h"
#include "support/random_gif.h"
#include "support/same_animation.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// The data of an image, with a code size of its own, and the end code that follows from it.
constexpr uint8 kClearRedEndAtOne = 0b00'11'01'10;  // codes of 2, 2 and then 3 bits
constexpr uint8 kRestAtOne = 0;

class GifBrowserLoad : public GifLoadTest {
  protected:
    GifBrowserLoad() { prefs.animation_faithful = true; }
    const Animation& Current() { return *(animation_ = document.Current()); }
    const GifSource& SourceOf(int32 index) { return *FrameOf(index).source; }

  private:
    std::shared_ptr<const Animation> animation_;
};

GifBuilder::Image OfCodeSize(GifBuilder::Image image, int32 size) {
    image.min_code_size = size;
    return image;
}

Bytes Without(Bytes bytes, size_t count) {
    bytes.resize(bytes.size() - count);
    return bytes;
}

}  // namespace

TEST_F(GifBrowserLoad, TakesCodeSizesBelowAndAboveThePalettesDepth) {
    GifBuilder gif(2, 1, std::vector<uint32>(256, 0xFF0000));
    gif.Add(OfCodeSize(ImageOf(2, 1, {1, 0}), 2));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(Pixels(0), std::vector<uint32>(2, kRed));

    GifBuilder wide = FourColorGif(2, 1);
    wide.Add(OfCodeSize(ImageOf(2, 1, {1, 200}), 8));
    ASSERT_TRUE(Load(wide.Trailer()));
    // An index without an entry is black.
    EXPECT_EQ(Pixels(0), (std::vector<uint32>{kRed, kBlack}));
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifBrowserLoad, ReadsACodeSizeOfOneAsOne) {
    GifBuilder gif(1, 1, {0x000000, 0xFF0000});
    gif.AddData(OfCodeSize(ImageOf(1, 1, {}), 1), {kClearRedEndAtOne, kRestAtOne});
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(Pixels(0), std::vector<uint32>{kRed});
}

TEST_F(GifBrowserLoad, EndsBeforeAnImageOfALargerCodeSizeThanEight) {
    GifBuilder gif = FourColorGif(1, 1);
    gif.Add(ImageOf(1, 1, {1})).Add(OfCodeSize(ImageOf(1, 1, {2}), 9)).Trailer();
    EXPECT_TRUE(Load(gif));
    EXPECT_EQ(document.FrameCount(), 1);

    GifBuilder only = FourColorGif(1, 1);
    only.Add(OfCodeSize(ImageOf(1, 1, {2}), 9)).Trailer();
    EXPECT_FALSE(Load(only));
}

TEST_F(GifBrowserLoad, MakesTheScreenAsLargeAsTheFirstImageNeeds) {
    GifBuilder gif = FourColorGif(1, 1);
    gif.Add(ImageAt(1, 0, 1, 2, {1, 2})).Add(ImageAt(0, 0, 3, 1, {3, 3, 3}));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(Current().width, 2);
    EXPECT_EQ(Current().height, 2);
    EXPECT_EQ(Pixels(0), (std::vector<uint32>{0, kRed, 0, kGreen}));
    // Later images are cut.
    EXPECT_EQ(Pixels(1), (std::vector<uint32>{kBlue, kBlue, 0, kGreen}));
}

TEST_F(GifBrowserLoad, TransparencyAndDisposalHoldForTheirOwnImageOnly) {
    GifBuilder gif = FourColorGif(2, 1);
    gif.Control(2, 0, 1).Add(ImageOf(2, 1, {1, 2}));
    gif.Add(ImageOf(2, 1, {1, 1}));
    gif.Add(ImageOf(1, 1, {3}));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(Pixels(0), (std::vector<uint32>{0, kGreen}));
    EXPECT_EQ(Pixels(1), (std::vector<uint32>{kRed, kRed}));
    EXPECT_EQ(Pixels(2), (std::vector<uint32>{kBlue, kRed}));
}

TEST_F(GifBrowserLoad, RestoringTheBackgroundClearsTheImagesRectangleToTransparent) {
    GifBuilder gif = FourColorGif(3, 1, 2);
    gif.Control(1, 0).Add(ImageOf(3, 1, {1, 1, 1}));
    gif.Control(2, 0).Add(ImageAt(1, 0, 1, 1, {3}));
    gif.Control(0, 0).Add(ImageAt(2, 0, 1, 1, {2}));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(Pixels(1), (std::vector<uint32>{kRed, kBlue, kRed}));
    EXPECT_EQ(Pixels(2), (std::vector<uint32>{kRed, 0, kGreen}));
}

TEST_F(GifBrowserLoad, RestoringThePreviousBringsBackWhatWasBelow) {
    for (const int32 method : {3, 4}) {
        GifBuilder gif = FourColorGif(2, 1);
        gif.Control(1, 0).Add(ImageOf(2, 1, {1, 1}));
        gif.Control(method, 0).Add(ImageOf(2, 1, {3, 3}));
        gif.Control(0, 0).Add(ImageOf(1, 1, {2}));
        ASSERT_TRUE(Load(gif.Trailer()));
        EXPECT_EQ(Pixels(2), (std::vector<uint32>{kGreen, kRed})) << method;
    }
}

TEST_F(GifBrowserLoad, KeepsPausesOfZeroBesideOthers) {
    GifBuilder gif = FourColorGif(1, 1);
    gif.Control(0, 10).Add(ImageOf(1, 1, {1}));
    gif.Control(0, 0).Add(ImageOf(1, 1, {2}));
    gif.Add(ImageOf(1, 1, {3}));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(FrameOf(0).pause_length, 10);
    for (const int32 index : {1, 2}) {
        EXPECT_TRUE(FrameOf(index).use_pause);
        EXPECT_EQ(FrameOf(index).pause_length, 0);
    }
}

TEST_F(GifBrowserLoad, KnowsLoopBlocksOfBothNames) {
    const std::string names[] = {"NETSCAPE2.0", "ANIMEXTS1.0", "ANIMEXTS1.1"};
    for (const std::string& name : names) {
        GifBuilder gif = FourColorGif(1, 1);
        gif.Bytes({0x21, 0xFF, 11}).Bytes({name.begin(), name.end()});
        // A sub-block of another number asks for a buffer.
        gif.Bytes({3, 1, 5, 0, 5, 2, 9, 9, 9, 9, 0}).Add(ImageOf(1, 1, {1}));
        ASSERT_TRUE(Load(gif.Trailer()));
        EXPECT_EQ(Current().use_loop, name != names[2]);
        EXPECT_TRUE(!Current().use_loop || Current().loop_count == 5);
    }
}

TEST_F(GifBrowserLoad, ReadsAFileWithoutTrailerOrWithJunkBehindItsImagesWhole) {
    GifBuilder gif = FourColorGif(1, 1);
    gif.Add(ImageOf(1, 1, {1}));
    EXPECT_TRUE(Load(gif));
    EXPECT_EQ(document.FrameCount(), 1);
    EXPECT_TRUE(Load(gif.Bytes({'j', 'u', 'n', 'k'})));
    EXPECT_FALSE(Load(FourColorGif(1, 1)));
}

TEST_F(GifBrowserLoad, ShowsWhatThereIsOfATruncatedLastImage) {
    GifBuilder gif = FourColorGif(4, 4);
    gif.Control(1, 0).Add(ImageOf(4, 4, Bytes(16, 1)));
    gif.Add(ImageOf(4, 4, Bytes(16, 2)));
    ASSERT_TRUE(Load(Without(gif, 5)));
    const std::vector<uint32> pixels = Pixels(1);
    EXPECT_EQ(pixels.front(), kGreen);
    EXPECT_EQ(pixels.back(), kRed);
    EXPECT_FALSE(document.FrameAt(0)->damaged);
    EXPECT_TRUE(document.FrameAt(1)->damaged);
}

TEST_F(GifBrowserLoad, TakesAnyVersionAndFramesWithoutATable) {
    GifBuilder gif(1, 1, {}, 0, "GIFxyz");
    gif.Add(ImageOf(1, 1, {3}));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_EQ(Pixels(0), std::vector<uint32>{kBlack});
}

TEST_F(GifBrowserLoad, EachFrameKeepsHowItStoodInTheFile) {
    GifBuilder gif = FourColorGif(2, 2);
    gif.Control(1, 7).Add(ImageOf(2, 2, {1, 2, 3, 1}));
    GifBuilder::Image image = ImageAt(1, 0, 1, 2, {0, 1});
    image.local_table = kFourColorsReversed;
    image.interlaced = true;
    gif.Control(3, 7, 1).Add(image);
    ASSERT_TRUE(Load(gif.Trailer()));

    const GifSource& source = SourceOf(1);
    EXPECT_EQ(source.rect, (PixelRect{1, 0, 1, 2}));
    EXPECT_EQ(source.disposal, Disposal::kPrevious);
    EXPECT_EQ(source.transparent_index, 1);
    EXPECT_TRUE(source.interlaced);
    EXPECT_TRUE(source.local_table);
    EXPECT_EQ(source.table->size(), 4u);
    EXPECT_EQ(source.table->front().blue, 255);
    EXPECT_EQ(source.min_code_size, 2);
    const Bytes codes(source.codes->Bytes(), source.codes->Bytes() + source.codes_size);
    EXPECT_EQ(codes, GifBuilder::PackCodes(2, {4, 0, 1, 5}));
    EXPECT_EQ(source.picture.lock(), FrameOf(1).bitmap);
    EXPECT_EQ(source.previous.lock(), FrameOf(0).source);
    EXPECT_FALSE(SourceOf(0).previous.lock());
    EXPECT_FALSE(SourceOf(0).local_table);
}

TEST_F(GifBrowserLoad, CountsTheBytesThatFramesKeepAndDoesWithoutWhereThereIsNoRoom) {
    GifBuilder gif = FourColorGif(1, 1);
    GifBuilder::Image image = ImageOf(1, 1, {1});
    gif.AddData(image, Bytes(100000, 0));
    ASSERT_TRUE(Load(gif.Trailer()));
    EXPECT_GE(document.pixel_budget->Used(), 100000u);

    document.Reset();
    document.pixel_budget->SetLimit(50000);
    ASSERT_TRUE(Load(gif));
    EXPECT_FALSE(FrameOf(0).source);
}

TEST_F(GifBrowserLoad, ByTheDefinedRulesFramesKeepNothing) {
    prefs.animation_faithful = false;
    GifBuilder gif = FourColorGif(1, 1);
    ASSERT_TRUE(Load(gif.Add(ImageOf(1, 1, {1})).Trailer()));
    EXPECT_FALSE(FrameOf(0).source);
    EXPECT_FALSE(FrameOf(0).use_pause);
}

TEST(GifBrowserLoadThreads, TheirNumberMakesNoDifference) {
    for (uint32 seed = 0; seed < 40; ++seed) {
        Bytes bytes = RandomGif(seed);
        if (seed % 4 == 3) bytes.resize(bytes.size() * 2 / 3);
        std::shared_ptr<const Animation> alone;
        for (const int32 threads : kThreadCounts) {
            const ScopedThreads scope(threads);
            DocumentFixture fixture;
            fixture.prefs.animation_faithful = true;
            const DebugRecorder debug;
            const auto file = BFile::OnMemory(bytes);
            const GifLoad loader(file.get(), 0, fixture.document);
            if (!alone) alone = fixture.document.Current();
            ASSERT_TRUE(SameAnimation(*fixture.document.Current(), *alone)) << seed;
        }
    }
}

}  // namespace kirto::test
