#include "animation/frame_set.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace kirto::test {

namespace {

using Positions = std::vector<int32>;

// What the text selects of ten frames.
Positions Parsed(const char* text) {
    const auto set = ParseFrameSet(text, 10);
    return set ? set->Positions() : Positions{-1};
}

}  // namespace

TEST(FrameSet, IsEmptyAtFirst) {
    const FrameSet set;

    EXPECT_TRUE(set.Empty());
    EXPECT_EQ(set.Count(), 0);
    EXPECT_EQ(set.First(), -1);
    EXPECT_EQ(set.Last(), -1);
    EXPECT_EQ(set.NearestTo(3), -1);
    EXPECT_FALSE(set.Contains(0));
}

TEST(FrameSet, KeepsNeighborsAsOneRange) {
    FrameSet set = FrameSet::Of(0, 2);
    set.Add({3, 3});

    EXPECT_EQ(set.Ranges(), (std::vector<FrameSet::Range>{{0, 3}}));
}

TEST(FrameSet, OfAStepHasEachOfThose) {
    EXPECT_EQ(FrameSet::Of(1, 8, 3).Positions(), (Positions{1, 4, 7}));
    EXPECT_TRUE(FrameSet::Of(4, 3).Empty());
}

TEST(FrameSet, FindsTheNearestMemberAndTheLaterOfTwo) {
    FrameSet set = FrameSet::Of(2, 3);
    set.Add({7, 9});

    EXPECT_EQ(set.NearestTo(0), 2);
    EXPECT_EQ(set.NearestTo(3), 3);
    EXPECT_EQ(set.NearestTo(4), 3);
    EXPECT_EQ(set.NearestTo(5), 7);
    EXPECT_EQ(set.NearestTo(100), 9);
}

TEST(FrameSet, IsWhatASetOfNumbersIsAfterRandomChanges) {
    constexpr int32 kFrames = 40;
    std::mt19937 random(7);
    FrameSet set;
    std::set<int32> expected;
    for (int round = 0; round < 3000; ++round) {
        const auto first = static_cast<int32>(random() % kFrames);
        const int32 last = std::min<int32>(first + static_cast<int32>(random() % 6), kFrames - 1);
        const auto change = random() % 3;
        if (change == 0) set.Add({first, last});
        if (change == 1) set.Remove({first, last});
        if (change == 2) set.Toggle(first);
        for (int32 i = first; i <= (change == 2 ? first : last); ++i) {
            const bool add = change == 0 || (change == 2 && !expected.contains(i));
            add ? (void)expected.insert(i) : (void)expected.erase(i);
        }
        ASSERT_EQ(set.Positions(), Positions(expected.begin(), expected.end()));
        ASSERT_EQ(set.Count(), static_cast<int32>(expected.size()));
        const FrameSet inverted = set.Inverted(kFrames);
        for (int32 i = 0; i < kFrames; ++i) {
            ASSERT_EQ(set.Contains(i), expected.contains(i));
            ASSERT_EQ(inverted.Contains(i), !expected.contains(i));
        }
        for (size_t i = 1; i < set.Ranges().size(); ++i)
            ASSERT_GT(set.Ranges()[i].first, set.Ranges()[i - 1].last + 1);
    }
}

TEST(FrameSet, WithinAShorterListLosesWhatThatDoesNotHave) {
    EXPECT_EQ(FrameSet::Of(2, 8).Within(5).Positions(), (Positions{2, 3, 4}));
    EXPECT_EQ(FrameSet::Of(2, 8).Within(9), FrameSet::Of(2, 8));
    EXPECT_TRUE(FrameSet::Of(2, 8).Within(0).Empty());
}

TEST(ParseFrameSet, TakesNumbersRangesAndSteps) {
    EXPECT_EQ(Parsed("3"), (Positions{3}));
    EXPECT_EQ(Parsed("3-5"), (Positions{3, 4, 5}));
    EXPECT_EQ(Parsed("0,4,7"), (Positions{0, 4, 7}));
    EXPECT_EQ(Parsed("0-9/4"), (Positions{0, 4, 8}));
    EXPECT_EQ(Parsed(" 1 , 3 - 4 "), (Positions{1, 3, 4}));
    EXPECT_EQ(Parsed("5,3-6,5"), (Positions{3, 4, 5, 6}));
    EXPECT_EQ(Parsed("all").size(), 10u);
    EXPECT_EQ(Parsed("none"), Positions{});
}

TEST(ParseFrameSet, CountsNegativeNumbersFromTheEnd) {
    EXPECT_EQ(Parsed("-1"), (Positions{9}));
    EXPECT_EQ(Parsed("-3--1"), (Positions{7, 8, 9}));
    EXPECT_EQ(Parsed("8--1"), (Positions{8, 9}));
}

TEST(ParseFrameSet, TakesARangeWrittenBackward) {
    EXPECT_EQ(Parsed("5-3"), (Positions{3, 4, 5}));
}

TEST(ParseFrameSet, RefusesWhatIsNoSetAndWhatTheListDoesNotHave) {
    for (const char* text : {"", ",", "1,", "a", "1-", "-", "1-2-3", "10", "-11", "3-10", "1/2",
                             "0-9/0", "0-9/-1", "0-9/", "99999999999", "1;2"}) {
        EXPECT_EQ(Parsed(text), Positions{-1}) << text;
    }
}

TEST(FrameSet, ComesBackFromItsText) {
    for (const char* text : {"none", "3", "0-9", "1,4-5,8"}) {
        EXPECT_EQ(TextOf(ParseFrameSet(text, 10).value()), text);
    }
}

}  // namespace kirto::test
