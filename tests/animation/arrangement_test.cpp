#include "animation/arrangement.h"

#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>

#include "kit/bitmap.h"

namespace kirto::test {

namespace {

// A frame a letter, the given ones selected and the first of them current.
Animation AnimationOf(const std::string& names, const char* selection) {
    Animation animation;
    for (const char name : names) {
        InsertFrame(animation, animation.frames.Size(),
                    std::make_shared<const Frame>(Frame(std::string(1, name), 1, 1)));
    }
    const FrameSet frames = ParseFrameSet(selection, animation.frames.Size()).value();
    SelectFrames(animation, frames, frames.First());
    return animation;
}

std::string Names(const Animation& animation) {
    std::string names;
    for (const FramePointer& frame : animation.frames)
        names += frame->name;
    return names;
}

// Those of the selected frames, the current one's in capitals.
std::string Selected(const Animation& animation) {
    std::string names;
    for (const int32 i : animation.Selection().Positions()) {
        const char name = animation.frames.At(i)->name[0];
        names += i == animation.selected ? static_cast<char>(std::toupper(name)) : name;
    }
    return names;
}

// The list, and what is selected of it.
std::string State(const Animation& animation) {
    return Names(animation) + " " + Selected(animation);
}

template <typename Edit>
std::string After(const std::string& names, const char* selection, Edit edit) {
    Animation animation = AnimationOf(names, selection);
    const Animation before = animation;
    const bool changed = edit(animation);
    EXPECT_EQ(changed, !(animation == before));
    return State(animation);
}

bool HasDistinctIds(const Animation& animation) {
    std::set<FrameId> ids;
    for (const FramePointer& frame : animation.frames)
        ids.insert(frame->id);
    return static_cast<int32>(ids.size()) == animation.frames.Size();
}

void SetFramePauses(Animation& animation, const std::vector<double>& pauses) {
    for (size_t i = 0; i < pauses.size(); ++i) {
        EditFrame(animation, static_cast<int32>(i), [&](Frame& frame) {
            frame.use_pause = true;
            frame.pause_length = pauses[i];
        });
    }
}

std::vector<double> PausesOf(const Animation& animation) {
    std::vector<double> pauses;
    for (const FramePointer& frame : animation.frames)
        pauses.push_back(animation.PauseOf(*frame));
    return pauses;
}

// Gives the frame one pixel of that grey.
void SetGrey(Animation& animation, int32 i, uint32 grey) {
    const uint32 pixel = 0xFF000000 | grey << 16 | grey << 8 | grey;
    EditFrame(animation, i,
              [&](Frame& frame) { frame.bitmap = Picture::Solid(pixel, 1, 1, B_RGB32, nullptr); });
}

}  // namespace

TEST(RemoveSelected, RemovesTheFramesAndMakesTheOneAfterThemCurrent) {
    EXPECT_EQ(After("abcdef", "1-2,4", RemoveSelected), "adf D");
    EXPECT_EQ(After("abcdef", "4-5", RemoveSelected), "abcd D");
    EXPECT_EQ(After("abc", "1", RemoveSelected), "ac C");
    EXPECT_EQ(After("abc", "all", RemoveSelected), " ");
}

TEST(RemoveSelected, HasNothingToDoWithoutFrames) {
    Animation animation;

    EXPECT_FALSE(RemoveSelected(animation));
}

TEST(MoveSelected, MovesEachFrameAndKeepsThemSelected) {
    const auto up = [](Animation& each) { return MoveSelected(each, true); };
    const auto down = [](Animation& each) { return MoveSelected(each, false); };

    EXPECT_EQ(After("abcdef", "1-2,4", up), "bcaedf Bce");
    EXPECT_EQ(After("abcdef", "1-2,4", down), "adbcfe Bce");
    EXPECT_EQ(After("abc", "1", up), "bac B");
}

TEST(MoveSelected, LeavesWhatStandsAtTheEnd) {
    const auto up = [](Animation& each) { return MoveSelected(each, true); };
    const auto down = [](Animation& each) { return MoveSelected(each, false); };

    EXPECT_EQ(After("abcd", "0-1,3", up), "abdc Abd");
    EXPECT_EQ(After("abcd", "0-1", up), "abcd Ab");
    EXPECT_EQ(After("abcd", "2-3", down), "abcd Cd");
    EXPECT_EQ(After("abcd", "all", down), "abcd Abcd");
}

TEST(MoveSelectedTo, GathersTheFramesThere) {
    const auto to = [](int32 position) {
        return [position](Animation& each) { return MoveSelectedTo(each, position); };
    };

    EXPECT_EQ(After("abcdef", "1,4", to(3)), "acbedf Be");
    EXPECT_EQ(After("abcdef", "1,4", to(0)), "beacdf Be");
    EXPECT_EQ(After("abcdef", "1,4", to(6)), "acdfbe Be");
    EXPECT_EQ(After("abcdef", "1-2", to(2)), "abcdef Bc");
    EXPECT_EQ(After("abcdef", "1-2", to(3)), "abcdef Bc");
    EXPECT_EQ(After("abc", "0", to(3)), "bca A");
}

TEST(MoveSelectedTo, TakesNoPlaceOutsideTheList) {
    Animation animation = AnimationOf("abc", "0-1");

    EXPECT_FALSE(MoveSelectedTo(animation, -1));
    EXPECT_FALSE(MoveSelectedTo(animation, 4));
}

TEST(CopySelectedTo, InsertsCopiesWithIdsOfTheirOwnAndSelectsThem) {
    Animation animation = AnimationOf("abcd", "1,3");

    EXPECT_TRUE(CopySelectedTo(animation, 4));

    EXPECT_EQ(State(animation), "abcdbd Bd");
    EXPECT_EQ(animation.selected, 4);
    EXPECT_TRUE(HasDistinctIds(animation));
}

TEST(InsertCopies, StaysWithinTheListAndSelectsWhatItInserts) {
    const Animation source = AnimationOf("xy", "0");
    const std::vector<FramePointer> frames(source.frames.begin(), source.frames.end());
    Animation animation = AnimationOf("ab", "0");

    EXPECT_TRUE(InsertCopies(animation, 99, frames));
    EXPECT_EQ(State(animation), "abxy Xy");
    EXPECT_TRUE(InsertCopies(animation, -1, frames));
    EXPECT_EQ(State(animation), "xyabxy Xy");
    EXPECT_TRUE(HasDistinctIds(animation));
    EXPECT_FALSE(InsertCopies(animation, 0, {}));
}

TEST(InsertCopies, MakesTheFirstOfThemCurrentInAnEmptyAnimation) {
    const Animation source = AnimationOf("x", "0");
    Animation animation;

    EXPECT_TRUE(InsertCopies(animation, 0, {source.frames.At(0)}));

    EXPECT_EQ(State(animation), "x X");
}

TEST(ReverseSelected, ReversesTheFramesAmongTheirPlaces) {
    EXPECT_EQ(After("abcdef", "1,3,5", ReverseSelected), "afcdeb Fdb");
    EXPECT_EQ(After("abcd", "1", ReverseSelected), "dcba C");
    EXPECT_EQ(After("a", "0", ReverseSelected), "a A");
}

TEST(PlayForwardAndBack, AddsTheWayBackAndTurnsOnceAtEachEnd) {
    EXPECT_EQ(After("abcd", "0", PlayForwardAndBack), "abcdcb Abcdcb");
    EXPECT_EQ(After("abcde", "1-3", PlayForwardAndBack), "abcdce Bcdc");
    EXPECT_EQ(After("ab", "0", PlayForwardAndBack), "ab A");
}

TEST(PlayForwardAndBack, GivesCopiesIdsOfTheirOwn) {
    Animation animation = AnimationOf("abcd", "0");
    PlayForwardAndBack(animation);

    EXPECT_TRUE(HasDistinctIds(animation));
}

TEST(StartAtCurrent, LetsTheFramesBeforeFollowAfterTheLast) {
    EXPECT_EQ(After("abcd", "2", StartAtCurrent), "cdab C");
    EXPECT_EQ(After("abcd", "0", StartAtCurrent), "abcd A");
}

TEST(DropEveryNth, GivesTheTimeOfWhatGoesToTheFrameBefore) {
    Animation animation = AnimationOf("abcde", "3");
    SetFramePauses(animation, {1, 2, 3, 4, 5});

    EXPECT_TRUE(DropEveryNth(animation, 2));

    EXPECT_EQ(State(animation), "ace C");
    EXPECT_EQ(PausesOf(animation), (std::vector<double>{3, 7, 5}));
}

TEST(DropEveryNth, AddsThePausesOfTheAnimationToo) {
    Animation animation = AnimationOf("abc", "0");
    animation.use_pause = true;
    animation.pause_length = 10;

    EXPECT_TRUE(DropEveryNth(animation, 3));

    EXPECT_EQ(Names(animation), "ab");
    EXPECT_EQ(PausesOf(animation), (std::vector<double>{10, 20}));
    EXPECT_FALSE(animation.frames.At(0)->use_pause);
}

TEST(DropEveryNth, WorksOnTheSelectedFrames) {
    const auto drop = [](Animation& each) { return DropEveryNth(each, 2); };

    EXPECT_EQ(After("abcdef", "1-4", drop), "abdf B");
    EXPECT_EQ(After("abcdef", "1,4", drop), "abcdf B");
}

TEST(DropEveryNth, NeverDropsTheFirstOrAll) {
    Animation animation = AnimationOf("abc", "0");

    EXPECT_FALSE(DropEveryNth(animation, 1));
    EXPECT_FALSE(DropEveryNth(animation, 4));
    EXPECT_EQ(Names(animation), "abc");
}

TEST(RemoveDuplicates, MergesFramesThatShowWhatTheOneBeforeShows) {
    Animation animation = AnimationOf("abcde", "0");
    const std::vector<uint32> greys = {9, 9, 20, 9, 9};
    for (size_t i = 0; i < greys.size(); ++i)
        SetGrey(animation, static_cast<int32>(i), greys[i]);
    SetFramePauses(animation, {1, 2, 3, 4, 5});

    EXPECT_TRUE(RemoveDuplicates(animation, 0, nullptr));

    EXPECT_EQ(Names(animation), "acd");
    EXPECT_EQ(PausesOf(animation), (std::vector<double>{3, 3, 9}));
    EXPECT_FALSE(RemoveDuplicates(animation, 0, nullptr));
}

TEST(RemoveDuplicates, ComparesWithTheFrameThatStaysSoThatNothingDrifts) {
    Animation animation = AnimationOf("abcd", "0");
    for (int32 i = 0; i < 4; ++i)
        SetGrey(animation, i, 10 + static_cast<uint32>(i) * 2);

    EXPECT_TRUE(RemoveDuplicates(animation, 3, nullptr));

    EXPECT_EQ(Names(animation), "ac");
}

TEST(RemoveDuplicates, LeavesFramesThatAreNotShownOneAfterTheOther) {
    Animation animation = AnimationOf("abc", "0,2");
    for (int32 i = 0; i < 3; ++i)
        SetGrey(animation, i, 5);

    EXPECT_FALSE(RemoveDuplicates(animation, 0, nullptr));
}

TEST(RemoveDuplicates, ChangesNothingWhenItIsStopped) {
    Animation animation = AnimationOf("ab", "0");
    SetGrey(animation, 0, 5);
    SetGrey(animation, 1, 5);
    Work work;
    work.StopAll();

    EXPECT_FALSE(RemoveDuplicates(animation, 0, &work));
    EXPECT_EQ(Names(animation), "ab");
}

// Whatever is done, the current frame is one of the selected, and no frame is there twice.
TEST(Arrangement, KeepsItsRulesUnderRandomEdits) {
    std::mt19937 random(3);
    const auto below = [&random](int32 bound) {
        return static_cast<int32>(random() % static_cast<uint32>(bound));
    };
    Animation animation = AnimationOf("abcdefghijklmnopqrstuvwxyz", "0");
    for (int round = 0; round < 4000; ++round) {
        const int32 size = animation.frames.Size();
        if (size < 3) CopySelectedTo(animation, size);
        FrameSet frames;
        for (int32 i = below(4); i >= 0; --i) {
            const int32 first = below(animation.frames.Size());
            frames.Add({first, std::min(first + below(5), animation.frames.Size() - 1)});
        }
        SelectFrames(animation, frames, below(animation.frames.Size()));
        const int32 position = below(animation.frames.Size() + 1);
        switch (below(9)) {
            case 0:
                RemoveSelected(animation);
                break;
            case 1:
                MoveSelected(animation, true);
                break;
            case 2:
                MoveSelected(animation, false);
                break;
            case 3:
                MoveSelectedTo(animation, position);
                break;
            case 4:
                CopySelectedTo(animation, position);
                break;
            case 5:
                ReverseSelected(animation);
                break;
            case 6:
                if (size < 300) PlayForwardAndBack(animation);
                break;
            case 7:
                DropEveryNth(animation, 2 + below(5));
                break;
            default:
                StartAtCurrent(animation);
                break;
        }
        const FrameSet selection = animation.Selection();
        const bool empty = animation.frames.Empty();
        ASSERT_EQ(animation.selected == -1, empty);
        ASSERT_EQ(selection.Contains(animation.selected), !empty);
        ASSERT_LT(selection.Last(), animation.frames.Size());
        ASSERT_NE(animation.several.Count(), 1);
        ASSERT_TRUE(HasDistinctIds(animation));
        if (empty) animation = AnimationOf("abcdefgh", "0");
    }
}

}  // namespace kirto::test
