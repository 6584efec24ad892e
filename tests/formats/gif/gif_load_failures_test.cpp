// Files that end too early, memory that runs out: what was read so far stays.
#include <gmock/gmock.h>

#include "base/allocation.h"
#include "formats/gif/gif_load_fixture.h"

namespace kirto::test {
namespace {

using testing::Each;
using testing::ElementsAre;

using GifLoadFailures = GifLoadTest;

// Two frames with everything that a file can have.
GifBuilder::Image SecondImage() {
    GifBuilder::Image image = ImageAt(1, 0, 1, 2, {1, 2});
    image.local_table = kFourColorsReversed;
    image.interlaced = true;
    return image;
}

GifBuilder FirstHalf() {
    return FourColorGif(2, 2, 3).Loop(5).Comment("hello").Control(2, 10, 0).Add(
        ImageOf(2, 2, {0, 1, 2, 3}));
}

GifBuilder TwoFrames() {
    return FirstHalf().Control(1, 20).Bytes({0x21, 0x01, 1, 0xAA, 0}).Add(SecondImage()).Trailer();
}

// What an image of 4 x 4 pixels of one color takes.
constexpr uint64 kFrameBytes = PixelBudget::kFrameCost;

GifBuilder FourByFour(int32 count) {
    GifBuilder gif = FourColorGif(4, 4);
    for (int32 i = 0; i < count; ++i)
        gif.Add(ImageOf(4, 4, std::vector<uint8>(16, 1)));
    return gif.Trailer();
}

TEST_F(GifLoadFailures, AFileCutAtAnyByteKeepsTheFramesBeforeTheCut) {
    const std::vector<uint8> whole = TwoFrames();
    // The last byte of an image is its terminator, which it can do without.
    const size_t first_end = FirstHalf().Data().size() - 1;
    const size_t second_end = whole.size() - 2;
    ASSERT_TRUE(Load(whole));
    const std::vector<uint32> pictures[] = {Pixels(0), Pixels(1)};
    for (size_t size = 0; size < whole.size(); ++size) {
        document.Reset();
        EXPECT_FALSE(Load({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}));
        const int32 frames = (size >= first_end ? 1 : 0) + (size >= second_end ? 1 : 0);
        ASSERT_EQ(document.FrameCount(), frames) << size;
        EXPECT_EQ(end, frames) << size;
        for (int32 i = 0; i < frames; ++i)
            EXPECT_EQ(Pixels(i), pictures[i]) << size;
    }
}

TEST_F(GifLoadFailures, WhatTheFileSaidAboutTheAnimationStays) {
    const std::vector<uint8> whole = TwoFrames();

    EXPECT_FALSE(Load({whole.begin(), whole.end() - 10}));

    EXPECT_EQ(document.Current()->width, 2);
    EXPECT_EQ(document.Current()->height, 2);
    EXPECT_EQ(document.Current()->loop_count, 5);
    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(GlobalPalette().background_index, 3);
    EXPECT_TRUE(GlobalPalette().use_transparent);
    EXPECT_FALSE(document.Modified());
}

TEST_F(GifLoadFailures, AnImageThatFailsHalfWayIsNotInserted) {
    GifBuilder gif = FourColorGif(2, 2).Add(ImageOf(2, 2, {1, 1, 1, 1}));
    gif.Bytes({0x2C, 0, 0, 0, 0, 2, 0, 2, 0, 0, 2, 255});

    EXPECT_FALSE(Load(gif.Bytes(std::vector<uint8>(100, 0x44))));

    EXPECT_EQ(document.FrameCount(), 1);
}

TEST_F(GifLoadFailures, WhenAnyAllocationFailsTheLoadFailsAndTheFramesBeforeStay) {
    const std::vector<uint8> file = TwoFrames();
    ASSERT_TRUE(Load(file));
    const std::vector<uint32> first = Pixels(0);
    bool done = false;
    for (int64 call = 1; !done; ++call) {
        document.Reset();
        const AlertRecorder alerts;
        const AllocationFault fault(call);
        const bool loaded = Load(file);
        done = fault.Calls() < call;
        EXPECT_EQ(loaded, done) << call;
        EXPECT_LE(document.FrameCount(), 2) << call;
        EXPECT_EQ(end, document.FrameCount()) << call;
        if (document.FrameCount() > 0) {
            EXPECT_EQ(Pixels(0), first) << call;
        }
        EXPECT_THAT(alerts.Lines(), Each("WARNING [] Out of memory. | OK")) << call;
        ASSERT_LT(call, 1000);
    }
    EXPECT_EQ(document.FrameCount(), 2);
    document.Reset();
    EXPECT_EQ(document.pixel_budget->Used(), 0u);
}

TEST_F(GifLoadFailures, AMissingFirstFrameFailsBehindTheHeaderWithoutALine) {
    const AllocationFault fault(1);

    EXPECT_FALSE(Load(FourByFour(1)));

    EXPECT_EQ(document.Current()->width, 4);
    EXPECT_EQ(GlobalPalette().bits, 2);
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadFailures, AMissingLaterFrameFailsWithItsLine) {
    // The last allocation of a file of one frame makes the spare frame's palette.
    int64 calls = 0;
    {
        const AllocationFault counter(1000);
        ASSERT_TRUE(Load(FourByFour(1)));
        calls = counter.Calls();
    }
    document.Reset();
    const AllocationFault fault(calls);
    EXPECT_FALSE(Load(FourByFour(1)));
    EXPECT_EQ(debug_text, "GifLoad::GifLoad() - Out of memory\n");
    EXPECT_EQ(document.FrameCount(), 1);
}

TEST_F(GifLoadFailures, APictureBeyondThePixelBudgetEndsTheLoadAndTheFramesBeforeStay) {
    for (int32 fitting = 0; fitting <= 3; ++fitting) {
        document.Reset();
        document.pixel_budget->SetLimit(kFrameBytes * static_cast<uint64>(fitting + 1) - 1);
        EXPECT_FALSE(Load(FourByFour(4)));
        EXPECT_EQ(document.FrameCount(), fitting);
        EXPECT_EQ(document.pixel_budget->Used(), kFrameBytes * static_cast<uint64>(fitting));
    }
}

TEST_F(GifLoadFailures, PicturesThatJustFillThePixelBudgetAreLoaded) {
    document.pixel_budget->SetLimit(kFrameBytes * 4);

    EXPECT_TRUE(Load(FourByFour(4)));

    EXPECT_EQ(document.FrameCount(), 4);
}

TEST_F(GifLoadFailures, AFewBytesThatAskForAHugeScreenAreRefused) {
    EXPECT_FALSE(Load(FourColorGif(65535, 65535).Add(ImageOf(1, 1, {1})).Trailer()));
    EXPECT_FALSE(LoadRaw(FourColorGif(65535, 65535).Add(ImageOf(65535, 65535, {1})).Trailer()));

    EXPECT_EQ(document.FrameCount(), 0);
    EXPECT_EQ(document.pixel_budget->Used(), 0u);
}

}  // namespace
}  // namespace kirto::test
