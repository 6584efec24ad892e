#include "animation/save_comparison.h"

#include <gtest/gtest.h>

#include "animation/gif_source.h"
#include "base/thread_count.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Pair = SaveDifferences::Pair;

// Of frames of one pixel each, on a screen of one pixel.
Animation AnimationPainted(const std::vector<uint32>& pixels, double pause = 10) {
    Animation animation;
    animation.width = 1;
    animation.height = 1;
    for (const uint32 pixel : pixels) {
        Frame frame("frame", 1, 1);
        frame.bitmap = FramePictureOf(1, 1, {pixel});
        frame.use_pause = true;
        frame.pause_length = pause;
        InsertFrame(animation, animation.frames.Size(), std::make_shared<const Frame>(frame));
    }
    return animation;
}

void SetPauses(Animation& animation, const std::vector<double>& pauses) {
    for (int32 i = 0; i < animation.frames.Size(); ++i) {
        EditFrame(animation, i,
                  [&](Frame& frame) { frame.pause_length = pauses[static_cast<size_t>(i)]; });
    }
}

// As it is for a frame whose image has that transparent index.
void SetTransparentIndex(Animation& animation, int32 index) {
    for (int32 i = 0; i < animation.frames.Size(); ++i) {
        EditFrame(animation, i, [&](Frame& frame) {
            auto source = std::make_shared<GifSource>();
            source->transparent_index = index;
            frame.source = source;
        });
    }
}

SaveDifferences Compare(const Animation& saved, const Animation& read,
                        const SaveComparison::Options& options = {}) {
    return SaveComparison(saved, read, options).Compare();
}

int32 Repaused(const std::vector<double>& saved_pauses, const std::vector<double>& read_pauses) {
    const std::vector<uint32> pixels(saved_pauses.size(), kRed);
    Animation saved = AnimationPainted(pixels);
    Animation read = AnimationPainted(pixels);
    SetPauses(saved, saved_pauses);
    SetPauses(read, read_pauses);
    return Compare(saved, read).repaused;
}

}  // namespace

TEST(SaveComparison, FindsNothingInTheSameAnimation) {
    const SaveDifferences none =
        Compare(AnimationPainted({kRed, kNone}), AnimationPainted({kRed, kNone}));

    EXPECT_FALSE(none.Any());
    EXPECT_EQ(none.frames, 2);
    EXPECT_EQ(none.pixels, 2);
    EXPECT_TRUE(none.pairs.empty());
}

TEST(SaveComparison, PixelsThatWereLeftOutShowATrail) {
    Animation read = AnimationPainted({kRed, kRed, kRed});
    SetTransparentIndex(read, 0);

    const SaveDifferences trails = Compare(AnimationPainted({kRed, kNone, kNone}), read);

    EXPECT_EQ(trails.trailing, 2);
    EXPECT_EQ(trails.filled, 0);
    EXPECT_EQ(trails.pairs, (std::vector<Pair>{{1, 1}, {2, 2}}));
}

// A frame of 200 x 100 pixels, so many of which have a color.
Animation PartlyRed(int32 red) {
    std::vector<uint32> pixels(20000, kNone);
    std::fill_n(pixels.begin(), red, kRed);
    Animation animation = AnimationPainted({kNone});
    animation.width = 200;
    animation.height = 100;
    EditFrame(animation, 0, [&](Frame& frame) {
        frame.bitmap = FramePictureOf(200, 100, pixels);
        frame.width = 200;
        frame.height = 100;
    });
    return animation;
}

TEST(SaveComparison, PixelsThatAreTooFewToBeSeenAreNoTrail) {
    for (const auto& [left, seen] : {std::pair(1, false), {19, false}, {20, true}, {64, true}}) {
        const SaveDifferences found = Compare(PartlyRed(0), PartlyRed(left));
        EXPECT_EQ(found.trailing, seen ? 1 : 0) << left;
        EXPECT_EQ(found.specked, seen ? 0 : 1) << left;
        EXPECT_EQ(found.most_left, left);
    }
}

TEST(SaveComparison, SumsUpHowFarColorsAreOff) {
    const SaveDifferences found =
        Compare(AnimationPainted({0xFF102030, kBlue}), AnimationPainted({0xFF122F30, kBlue}));
    EXPECT_EQ(found.recolored, 1);
    EXPECT_EQ(found.distance, 2 + 15);
}

TEST(SaveComparison, CountsFramesThatBrowsersPlaySlower) {
    EXPECT_EQ(Compare(AnimationPainted({kRed, kBlue}, 1), AnimationPainted({kRed, kBlue}, 1))
                  .short_pauses,
              2);
    EXPECT_EQ(Compare(AnimationPainted({kRed, kBlue}, 2), AnimationPainted({kRed, kBlue}, 2))
                  .short_pauses,
              0);
    EXPECT_EQ(Compare(AnimationPainted({kRed}, 0), AnimationPainted({kRed}, 0)).short_pauses, 0);
}

TEST(SaveComparison, AThresholdSaysWhatWasLeftOut) {
    const Animation saved = AnimationPainted({0x40FF0000});
    EXPECT_TRUE(Compare(saved, AnimationPainted({kRed})).Any());
    EXPECT_FALSE(Compare(saved, AnimationPainted({kRed}), {.threshold = 50}).Any());
    EXPECT_TRUE(Compare(saved, AnimationPainted({kNone}), {.threshold = 50}).Any());
}

TEST(SaveComparison, WithoutATransparentColorTheyAreFilled) {
    Animation read = AnimationPainted({kRed, kRed});
    SetTransparentIndex(read, -1);

    const SaveDifferences filled = Compare(AnimationPainted({kRed, kNone}), read);

    EXPECT_EQ(filled.trailing, 0);
    EXPECT_EQ(filled.filled, 1);
}

TEST(SaveComparison, WhatShowsAroundAFrameIsATrail) {
    Animation saved = AnimationPainted({kRed});
    saved.width = 2;
    Animation read = AnimationPainted({});
    read.width = 2;
    read.height = 1;
    Frame wide("wide", 2, 1);
    wide.bitmap = FramePictureOf(2, 1, {kRed, kBlue});
    wide.use_pause = true;
    wide.pause_length = 10;
    InsertFrame(read, 0, std::make_shared<const Frame>(wide));
    SetTransparentIndex(read, -1);

    EXPECT_EQ(Compare(saved, read).trailing, 1);
    EXPECT_FALSE(Compare(saved, read, {.parts = true}).Any());
}

TEST(SaveComparison, CountsLostColorsAndNamesThePalettesSize) {
    Animation saved = AnimationPainted({kRed, kRed, kRed, kRed});
    EditPalette(saved, [](Palette& palette) { palette.size = 216; });
    Animation local = saved;
    EditFrame(local, 1, [](Frame& frame) { frame.local_palette = true; });
    EditFramePalette(local, 1, [](Palette& palette) { palette.size = 8; });
    const Animation read = AnimationPainted({kRed, kBlue, kRed, kRed});

    const SaveDifferences differences = Compare(saved, read);

    EXPECT_EQ(differences.recolored, 1);
    EXPECT_EQ(differences.pixels, 4);
    EXPECT_EQ(differences.most_colors, 216);
    EXPECT_EQ(Compare(local, read).most_colors, 8);
}

TEST(SaveComparison, NamesTheSizeOfAPaletteThatIsTheFilesOwn) {
    Animation read = AnimationPainted({kBlue});
    auto source = std::make_shared<GifSource>();
    source->table = std::make_shared<const std::vector<rgb_color>>(64);
    EditFrame(read, 0, [&](Frame& frame) { frame.source = source; });

    EXPECT_EQ(Compare(AnimationPainted({kRed}), read, {.own_palettes = true}).most_colors, 64);
}

TEST(SaveComparison, CountsFramesWithHoles) {
    EXPECT_EQ(Compare(AnimationPainted({kRed, kRed}), AnimationPainted({kRed, kNone})).holed, 1);
}

TEST(SaveComparison, OneFrameMayStandForSeveralThatShowTheSame) {
    Animation read = AnimationPainted({kRed, kBlue, kNone});
    SetPauses(read, {10, 30, 10});

    EXPECT_FALSE(Compare(AnimationPainted({kRed, kBlue, kBlue, kBlue, kNone}), read).Any());
}

TEST(SaveComparison, FramesThatStandForOthersCountAsThem) {
    Animation read = AnimationPainted({kRed, kBlue});
    SetPauses(read, {10, 30});

    const SaveDifferences differences =
        Compare(AnimationPainted({kRed, kNone, kNone, kNone}), read);

    EXPECT_EQ(differences.trailing, 3);
    EXPECT_EQ(differences.pixels, 4);
    EXPECT_EQ(differences.pairs, (std::vector<Pair>{{1, 1}}));
}

TEST(SaveComparison, TellsOfAnotherNumberOfFrames) {
    const SaveDifferences fewer =
        Compare(AnimationPainted({kRed, kBlue, kRed}), AnimationPainted({kRed}));
    const SaveDifferences none = Compare(AnimationPainted({kRed}), Animation());

    EXPECT_EQ(fewer.other_frames, 1);
    EXPECT_FALSE(fewer.other_size);
    EXPECT_EQ(none.other_frames, 0);
    EXPECT_FALSE(none.other_size);
    EXPECT_FALSE(Compare(Animation(), Animation()).Any());
}

TEST(SaveComparison, TellsOfAnotherSizeAndAnotherLoop) {
    const Animation saved = AnimationPainted({kRed});
    Animation read = AnimationPainted({kRed});
    read.width = 3;
    read.use_loop = true;

    const SaveDifferences differences = Compare(saved, read);

    EXPECT_EQ(differences.other_size, (SaveDifferences::Size{3, 1}));
    EXPECT_EQ(differences.other_plays, (SaveDifferences::Plays{1, 0}));
}

TEST(SaveComparison, PausesOfTheAnimationAreThoseOfItsFrames) {
    Animation saved = AnimationPainted({kRed});
    EditFrame(saved, 0, [](Frame& frame) { frame.use_pause = false; });
    saved.pause_length = 0.1;

    EXPECT_EQ(Compare(saved, AnimationPainted({kRed}), {.pauses_in_seconds = true}).repaused, 1);
    saved.use_pause = true;
    EXPECT_EQ(Compare(saved, AnimationPainted({kRed}), {.pauses_in_seconds = true}).repaused, 0);
    EXPECT_EQ(Compare(saved, AnimationPainted({kRed})).repaused, 1);
}

TEST(SaveComparison, SpreadPausesAreRightAsLongAsFramesBeginWhenTheyShould) {
    const double third = 100.0 / 15;

    EXPECT_EQ(Repaused({third, third, third}, {7, 6, 7}), 0);
    EXPECT_EQ(Repaused({third, third, third}, {6, 6, 6}), 3);
    EXPECT_EQ(Repaused({10, 10, 10}, {10, 11, 10}), 1);
    EXPECT_EQ(Repaused({2.5, 2.5}, {3, 2}), 0);
    EXPECT_EQ(Repaused({70000}, {70000 - 65536}), 1);
}

TEST(SaveComparison, IsTheSameForAnyNumberOfThreads) {
    std::vector<uint32> saved;
    std::vector<uint32> read;
    for (uint32 i = 0; i < 200; ++i) {
        saved.push_back(i % 3 == 0 ? kNone : kRed);
        read.push_back(i % 5 == 0 ? kBlue : kRed);
    }
    const int32 before = ThreadCount();
    std::vector<SaveDifferences> all;
    for (const int32 threads : {1, 2, 3, 16}) {
        SetThreadCount(threads);
        all.push_back(Compare(AnimationPainted(saved), AnimationPainted(read)));
    }
    SetThreadCount(before);

    for (const SaveDifferences& each : all)
        EXPECT_EQ(each, all.front());
    EXPECT_EQ(all.front().frames, 200);
    EXPECT_TRUE(all.front().Any());
}

TEST(SaveComparison, KnowsNothingWhereTheWorkIsStopped) {
    Work work;
    work.StopAll();
    const Animation saved = AnimationPainted({kRed});
    const Animation read = AnimationPainted({kBlue});

    EXPECT_EQ(SaveComparison(saved, read, {}, &work).Compare(), SaveDifferences());
}

}  // namespace kirto::test
