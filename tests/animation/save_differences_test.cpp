#include "animation/save_differences.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

using Sentences = std::vector<std::string>;

}  // namespace

TEST(SaveDifferences, AreNoneAtFirst) {
    EXPECT_FALSE(SaveDifferences().Any());
    EXPECT_EQ(SaveDifferences().Sentences(), Sentences());
}

TEST(SaveDifferences, SayHowManyFramesShowWhat) {
    SaveDifferences differences{.frames = 56};
    differences.trailing = 28;
    EXPECT_EQ(differences.Sentences(), Sentences{"28 of 56 frames will show trails"});

    differences.filled = 1;
    differences.holed = 56;
    differences.repaused = 2;
    EXPECT_TRUE(differences.Any());
    EXPECT_EQ(differences.Sentences(),
              (Sentences{"28 of 56 frames will show trails",
                         "1 of 56 frames will not be transparent: no color stands for that",
                         "all 56 frames will lack pixels",
                         "2 of 56 frames will be shown for another time"}));
}

TEST(SaveDifferences, CallFewFramesByTheirName) {
    EXPECT_EQ((SaveDifferences{.frames = 1, .trailing = 1}).Sentences(),
              Sentences{"the frame will show trails"});
    EXPECT_EQ((SaveDifferences{.frames = 2, .trailing = 2}).Sentences(),
              Sentences{"both frames will show trails"});
}

TEST(SaveDifferences, SayHowManyPixelsLostTheirColorToHowManyColors) {
    SaveDifferences differences{.pixels = 1000, .recolored = 140, .most_colors = 216};
    EXPECT_EQ(differences.Sentences(),
              Sentences{"14 % of the pixels lost their color: 216 colors"});

    differences.recolored = 1;
    EXPECT_EQ(differences.Sentences(),
              Sentences{"less than 1 % of the pixels lost their color: 216 colors"});
    differences.recolored = 999;
    EXPECT_EQ(differences.Sentences(),
              Sentences{"more than 99 % of the pixels lost their color: 216 colors"});
    differences.recolored = 1000;
    EXPECT_EQ(differences.Sentences(),
              Sentences{"100 % of the pixels lost their color: 216 colors"});
}

TEST(SaveDifferences, SayHowMuchTrailsAndHowFarColorsAreOff) {
    SaveDifferences differences{.frames = 9, .trailing = 2, .specked = 1, .most_left = 1204};
    EXPECT_EQ(differences.Sentences(),
              (Sentences{"2 of 9 frames will show trails, of up to 1204 pixels",
                         "1 of 9 frames will show pixels of others, too few to be seen"}));
    differences = {.frames = 9, .specked = 3, .most_left = 1};
    EXPECT_TRUE(differences.Any());
    EXPECT_EQ(differences.Sentences(),
              Sentences{"3 of 9 frames will show pixels of others, too few to be seen: up to 1 "
                        "pixel"});
    differences = {.pixels = 1000, .recolored = 1000, .distance = 10500, .most_colors = 216};
    EXPECT_EQ(differences.Sentences(), Sentences{"100 % of the pixels lost their color, by 3.5 of "
                                                 "255 on average: 216 colors"});
}

TEST(SaveDifferences, WarnOfShortPausesThatAreNoDifference) {
    SaveDifferences differences{.frames = 9, .short_pauses = 1};
    EXPECT_FALSE(differences.Any());
    EXPECT_EQ(differences.Sentences(), Sentences());
    EXPECT_EQ(differences.Warning(),
              "browsers will play 1 frame slower: its pause is below 0.02 seconds");
    differences.short_pauses = 8;
    EXPECT_EQ(differences.Warning(),
              "browsers will play 8 frames slower: their pauses are below 0.02 seconds");
    EXPECT_EQ(SaveDifferences().Warning(), "");
}

TEST(SaveDifferences, SayWhatBecomesOfTheWhole) {
    SaveDifferences differences{.frames = 28};
    differences.other_size = {30, 20};
    differences.other_frames = 20;
    differences.other_plays = {70000, 4464};
    EXPECT_EQ(differences.Sentences(),
              (Sentences{"the animation will have 30 x 20 pixels",
                         "20 frame(s) will be shown instead of 28",
                         "the animation will play 4464 times instead of 70000 times"}));

    differences = {.frames = 28};
    differences.other_frames = 0;
    differences.other_plays = {1, 0};
    EXPECT_EQ(
        differences.Sentences(),
        (Sentences{"no frame will be shown", "the animation will play for ever instead of once"}));
}

}  // namespace kirto::test
