// Animated images as documents, whatever reads them.
#include "formats/images/animated_image_load.h"

#include <cstring>
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Result = AnimatedImageReader::Result;

struct FakeFrame {
    std::vector<uint32> pixels;
    double milliseconds = 100;
};

// Shows the frames as they are, and ends as it is told.
class FakeReader : public AnimatedImageReader {
  public:
    FakeReader(AnimatedImageHeader header, std::vector<FakeFrame> frames, Result end)
        : header_(header), frames_(std::move(frames)), end_(end) {}

    Result ReadHeader(AnimatedImageHeader* header) override {
        *header = header_;
        return header_.frame_count > 0 ? Result::kFrame : end_;
    }
    Result Next() override { return ++shown_ <= frames_.size() ? Result::kFrame : end_; }
    const uint8* Row(int32 y) const override {
        return reinterpret_cast<const uint8*>(
            &Shown().pixels[static_cast<size_t>(y * header_.width)]);
    }
    double Milliseconds() const override { return Shown().milliseconds; }

  private:
    const FakeFrame& Shown() const { return frames_[shown_ - 1]; }

    const AnimatedImageHeader header_;
    const std::vector<FakeFrame> frames_;
    const Result end_;
    size_t shown_ = 0;
};

struct AnimatedRoster : FakeRoster {
    AnimatedImageHeader header{2, 1, 2, 0};
    std::vector<FakeFrame> frames{{{kRed, kGreen}, 100}, {{kBlue, kGreen}, 33}};
    Result end = Result::kEnd;

    std::unique_ptr<AnimatedImageReader> ReadAnimatedImage(AnimatedImageFormat format,
                                                           std::span<const uint8> file,
                                                           uint64) const override {
        if (format != AnimatedImageFormat::kWebp || file.size() != 3) return nullptr;
        return std::make_unique<FakeReader>(header, frames, end);
    }
};

class AnimatedImageLoadTest : public testing::Test {
  protected:
    AnimatedImageLoad Load(int32 start = 0) {
        const auto file = BFile::OnMemory({1, 2, 3});
        return AnimatedImageLoad(AnimatedImageFormat::kWebp, file.get(), start, document, roster);
    }
    std::shared_ptr<const Animation> Current() const { return document.Current(); }
    Frame FrameAt(int32 position) const { return *document.FrameAt(position); }
    std::vector<uint32> PixelsAt(int32 position) const {
        return PixelsOf(*FrameAt(position).bitmap);
    }

    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    AnimatedRoster roster;
};

TEST_F(AnimatedImageLoadTest, MakesEachFrameOneOfTheDocument) {
    const AnimatedImageLoad load = Load();

    EXPECT_FALSE(load.failed);
    EXPECT_EQ(load.End(), 2);
    ASSERT_EQ(document.FrameCount(), 2);
    EXPECT_EQ(Current()->width, 2);
    EXPECT_EQ(Current()->height, 1);
    EXPECT_EQ(PixelsAt(0), (std::vector<uint32>{kRed, kGreen}));
    EXPECT_EQ(PixelsAt(1), (std::vector<uint32>{kBlue, kGreen}));
    EXPECT_EQ(FrameAt(1).name, "frame0001");
    EXPECT_TRUE(FrameAt(1).local_palette);
    EXPECT_EQ(FrameAt(1).palette->unique_colors, 2u);
}

TEST_F(AnimatedImageLoadTest, KeepsPausesToTheMillisecond) {
    Load();
    EXPECT_TRUE(FrameAt(0).use_pause);
    EXPECT_DOUBLE_EQ(FrameAt(0).pause_length, 10.0);
    EXPECT_DOUBLE_EQ(FrameAt(1).pause_length, 3.3);

    document.Reset();
    fixture.prefs.global_pauseinseconds = true;
    Load();
    EXPECT_DOUBLE_EQ(FrameAt(1).pause_length, 0.033);
}

TEST_F(AnimatedImageLoadTest, APauseThatAllFramesHaveIsTheAnimations) {
    roster.frames[1].milliseconds = 100;
    Load();

    EXPECT_TRUE(Current()->use_pause);
    EXPECT_DOUBLE_EQ(Current()->pause_length, 10.0);
    EXPECT_FALSE(FrameAt(0).use_pause);
    EXPECT_FALSE(FrameAt(1).use_pause);
}

TEST_F(AnimatedImageLoadTest, LoopsAsTheFileSays) {
    for (const int32 plays : {0, 1, 2, 7}) {
        document.Reset();
        roster.header.plays = plays;
        Load();
        EXPECT_EQ(Current()->use_loop, plays != 1) << plays;
        EXPECT_EQ(Current()->loop_count, std::max(plays - 1, 0)) << plays;
    }
}

TEST_F(AnimatedImageLoadTest, InsertedFramesLeaveTheAnimationAsItIsButForItsSize) {
    document.Change([](Animation& animation) {
        animation.width = 1;
        animation.height = 20;
    });
    Frame frame("first", 1, 20);
    frame.bitmap = FramePictureOf(1, 20, std::vector<uint32>(20, kRed));
    document.InsertFrame(0, frame);
    const auto before = Current();
    roster.header.plays = 3;

    EXPECT_EQ(Load(1).End(), 3);

    EXPECT_EQ(Current()->width, 2);
    EXPECT_EQ(Current()->height, 20);
    EXPECT_EQ(Current()->use_loop, before->use_loop);
    EXPECT_EQ(Current()->loop_count, before->loop_count);
    EXPECT_EQ(Current()->use_pause, before->use_pause);
    EXPECT_EQ(FrameAt(0).name, "first");
}

TEST_F(AnimatedImageLoadTest, WhatIsTransparentHasNoColor) {
    roster.frames = {{{0x00123456, 0x80123456}, 100}};
    Load();
    EXPECT_EQ(PixelsAt(0), (std::vector<uint32>{0, 0x80123456}));
}

TEST_F(AnimatedImageLoadTest, MakesTheSameWithAnyNumberOfThreads) {
    roster.frames.clear();
    for (uint32 i = 0; i < 40; ++i)
        roster.frames.push_back({{kRed + i, kGreen + i % 3}, 10.0 + i});
    std::vector<std::vector<uint32>> first;
    for (const int32 threads : kThreadCounts) {
        const ScopedThreads count(threads);
        document.Reset();
        Load();
        std::vector<std::vector<uint32>> pixels;
        for (int32 i = 0; i < document.FrameCount(); ++i)
            pixels.push_back(PixelsAt(i));
        if (first.empty()) first = pixels;
        EXPECT_EQ(pixels.size(), 40u);
        EXPECT_EQ(pixels, first) << threads;
    }
}

TEST_F(AnimatedImageLoadTest, FramesWithTheSameRowsShareThem) {
    roster.header = {100, 200, 2, 0};
    std::vector<uint32> pixels(100 * 200, kRed);
    for (size_t i = 0; i < pixels.size(); i += 2)
        pixels[i] = kGreen;
    roster.frames = {{pixels}, {pixels}};
    roster.frames[1].pixels[0] = kBlue;
    Load();

    const Picture::Strips& a = FrameAt(0).bitmap->AllStrips();
    const Picture::Strips& b = FrameAt(1).bitmap->AllStrips();
    ASSERT_EQ(a.size(), b.size());
    EXPECT_NE(a.front(), b.front());
    EXPECT_EQ(a.back(), b.back());
}

TEST_F(AnimatedImageLoadTest, KeepsTheFramesBeforeTheDamage) {
    roster.end = Result::kBroken;
    const AnimatedImageLoad load = Load();

    EXPECT_TRUE(load.failed);
    EXPECT_FALSE(load.out_of_memory);
    EXPECT_EQ(document.FrameCount(), 2);
}

TEST_F(AnimatedImageLoadTest, SaysWhereMemoryIsTooShort) {
    roster.end = Result::kNoMemory;
    EXPECT_TRUE(Load().out_of_memory);

    roster.end = Result::kEnd;
    document.Reset();
    document.pixel_budget->SetLimit(10);
    const AnimatedImageLoad load = Load();
    EXPECT_TRUE(load.failed);
    EXPECT_TRUE(load.out_of_memory);
    EXPECT_EQ(document.FrameCount(), 0);
}

TEST_F(AnimatedImageLoadTest, FailsWhereNothingReadsIt) {
    const auto file = BFile::OnMemory({1});
    const AnimatedImageLoad load(AnimatedImageFormat::kWebp, file.get(), 0, document, roster);
    EXPECT_TRUE(load.failed);
    EXPECT_FALSE(load.out_of_memory);
}

TEST_F(AnimatedImageLoadTest, StopsBetweenFramesWhenItIsToldTo) {
    document.work.Begin();
    document.work.Stop(document.work.Running());
    const AnimatedImageLoad load = Load();
    document.work.End();

    EXPECT_TRUE(load.failed);
    EXPECT_EQ(document.FrameCount(), 0);
}

}  // namespace

}  // namespace kirto::test
