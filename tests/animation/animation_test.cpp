#include "animation/animation.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "animation/arrangement.h"

namespace kirto::test {

namespace {

using NameList = std::vector<std::string>;

// Of frames of the names, the given one of them current.
Animation AnimationNamed(const NameList& names, int32 current = 0) {
    Animation animation;
    for (const std::string& name : names) {
        InsertFrame(animation, animation.frames.Size(),
                    std::make_shared<const Frame>(Frame(name, 1, 1)));
    }
    SelectFrame(animation, current);
    return animation;
}

NameList FrameNames(const Animation& animation) {
    NameList names;
    for (const FramePointer& frame : animation.frames)
        names.push_back(frame->name);
    return names;
}

FramePointer FrameOf(const std::string& name) {
    return std::make_shared<const Frame>(Frame(name, 1, 1));
}

}  // namespace

TEST(Animation, HasNoFrameAtFirst) {
    const Animation animation;

    EXPECT_EQ(animation.FirstFrame(), nullptr);
    EXPECT_EQ(animation.CurrentFrame(), nullptr);
    EXPECT_EQ(animation.FrameLargerThanCanvas(), nullptr);
    EXPECT_EQ(animation.selected, -1);
    EXPECT_EQ(*animation.palette, Palette());
}

TEST(InsertFrame, MakesTheFirstFrameOfAllTheCurrentOne) {
    Animation animation;

    EXPECT_TRUE(InsertFrame(animation, 0, FrameOf("one")));

    EXPECT_EQ(animation.selected, 0);
    EXPECT_EQ(animation.CurrentFrame()->name, "one");
}

TEST(InsertFrame, KeepsTheSelectedNumber) {
    Animation animation = AnimationNamed({"one", "two"}, 1);

    EXPECT_TRUE(InsertFrame(animation, 0, FrameOf("zero")));
    EXPECT_TRUE(InsertFrame(animation, 3, FrameOf("three")));

    EXPECT_EQ(FrameNames(animation), (NameList{"zero", "one", "two", "three"}));
    EXPECT_EQ(animation.selected, 1);
}

TEST(InsertFrame, OutsideTheListChangesNothing) {
    const Animation before = AnimationNamed({"one", "two"});
    for (const int32 position : {-1, 3}) {
        Animation animation = before;

        EXPECT_FALSE(InsertFrame(animation, position, FrameOf("new")));

        EXPECT_EQ(animation, before);
    }
}

TEST(RemoveSelected, MakesTheFollowingFrameCurrentOrElseTheLast) {
    Animation animation = AnimationNamed({"one", "two", "three"}, 1);

    EXPECT_TRUE(RemoveSelected(animation));
    EXPECT_EQ(animation.CurrentFrame()->name, "three");
    EXPECT_TRUE(RemoveSelected(animation));
    EXPECT_EQ(animation.CurrentFrame()->name, "one");
    EXPECT_TRUE(RemoveSelected(animation));
    EXPECT_EQ(animation.selected, -1);
    EXPECT_TRUE(animation.frames.Empty());
    EXPECT_FALSE(RemoveSelected(animation));
}

TEST(MoveSelected, SwapsNeighboursAndFollows) {
    Animation animation = AnimationNamed({"one", "two", "three"}, 1);

    EXPECT_TRUE(MoveSelected(animation, true));
    EXPECT_EQ(FrameNames(animation), (NameList{"two", "one", "three"}));
    EXPECT_EQ(animation.selected, 0);
    EXPECT_TRUE(MoveSelected(animation, false));
    EXPECT_TRUE(MoveSelected(animation, false));
    EXPECT_EQ(FrameNames(animation), (NameList{"one", "three", "two"}));
    EXPECT_EQ(animation.selected, 2);
}

TEST(MoveSelected, PastTheEndsChangesNothing) {
    const Animation empty;
    const Animation at_start = AnimationNamed({"one", "two"}, 0);
    const Animation at_end = AnimationNamed({"one", "two"}, 1);
    for (const auto& [before, up] :
         {std::pair{&empty, true}, {&empty, false}, {&at_start, true}, {&at_end, false}}) {
        Animation animation = *before;

        EXPECT_FALSE(MoveSelected(animation, up));

        EXPECT_EQ(animation, *before);
    }
}

TEST(ReverseSelected, KeepsTheSelectedNumber) {
    Animation animation = AnimationNamed({"one", "two", "three"}, 0);

    EXPECT_TRUE(ReverseSelected(animation));

    EXPECT_EQ(FrameNames(animation), (NameList{"three", "two", "one"}));
    EXPECT_EQ(animation.selected, 0);
}

TEST(ReverseSelected, BelowTwoFramesChangesNothing) {
    Animation empty;
    Animation single = AnimationNamed({"one"});

    EXPECT_FALSE(ReverseSelected(empty));
    EXPECT_FALSE(ReverseSelected(single));
    EXPECT_EQ(FrameNames(single), NameList{"one"});
}

TEST(SelectFrame, TakesOnlyAnotherFrameThatIsThere) {
    Animation animation = AnimationNamed({"one", "two", "three"}, 1);

    EXPECT_FALSE(SelectFrame(animation, 1));
    EXPECT_FALSE(SelectFrame(animation, 3));
    EXPECT_FALSE(SelectFrame(animation, -1));
    EXPECT_EQ(animation.selected, 1);
    EXPECT_TRUE(SelectFrame(animation, 2));
    EXPECT_EQ(animation.selected, 2);
}

TEST(EditFrame, KeepsTheIdAndLeavesTheFrameThatOthersHold) {
    Animation animation = AnimationNamed({"one", "two"});
    const FramePointer before = animation.frames.At(1);

    EditFrame(animation, 1, [](Frame& frame) { frame.x_offset = 7; });

    EXPECT_EQ(animation.frames.At(1)->x_offset, 7);
    EXPECT_EQ(animation.frames.At(1)->id, before->id);
    EXPECT_EQ(before->x_offset, 0);
}

TEST(EditFramePalette, ChangesTheFramesPaletteOnly) {
    Animation animation = AnimationNamed({"one", "two"});
    const Animation before = animation;

    EditFramePalette(animation, 0, [](Palette& palette) { palette.transparent_index = 9; });

    EXPECT_EQ(animation.frames.At(0)->palette->transparent_index, 9);
    EXPECT_EQ(animation.frames.At(0)->id, before.frames.At(0)->id);
    EXPECT_EQ(animation.frames.At(1), before.frames.At(1));
    EXPECT_EQ(animation.palette, before.palette);
    EXPECT_EQ(before.frames.At(0)->palette->transparent_index, 0);
}

TEST(EditPalette, LeavesThePaletteThatOthersHold) {
    Animation animation;
    const Animation before = animation;

    EditPalette(animation, [](Palette& palette) { palette.dither = true; });

    EXPECT_TRUE(animation.palette->dither);
    EXPECT_FALSE(before.palette->dither);
}

TEST(Animation, FindsTheFirstFrameThatIsLargerThanTheCanvas) {
    Animation animation = AnimationNamed({"one", "two", "three"});
    animation.width = 5;
    animation.height = 5;
    EXPECT_EQ(animation.FrameLargerThanCanvas(), nullptr);

    EditFrame(animation, 2, [](Frame& frame) { frame.width = 6; });
    EXPECT_EQ(animation.FrameLargerThanCanvas(), animation.frames.At(2));
    EditFrame(animation, 1, [](Frame& frame) { frame.height = 6; });
    EXPECT_EQ(animation.FrameLargerThanCanvas(), animation.frames.At(1));
    EditFrame(animation, 0, [](Frame& frame) { frame.width = 5; });
    EXPECT_EQ(animation.FrameLargerThanCanvas(), animation.frames.At(1));
}

TEST(Animation, EqualsACopyUntilAnyPartOfItChanges) {
    const Animation animation = AnimationNamed({"one", "two"});
    const std::function<void(Animation&)> edits[] = {
        [](Animation& a) { a.width = 1; },
        [](Animation& a) { a.height = 1; },
        [](Animation& a) { a.loop_count = 1; },
        [](Animation& a) { a.use_loop = true; },
        [](Animation& a) { a.use_pause = true; },
        [](Animation& a) { a.pause_length = 1; },
        [](Animation& a) { a.selected = 1; },
        [](Animation& a) { EditPalette(a, [](Palette& palette) { palette.bits = 3; }); },
        [](Animation& a) { EditFrame(a, 1, [](Frame& frame) { frame.width = 2; }); }};
    for (const auto& edit : edits) {
        Animation copy = animation;
        EXPECT_EQ(copy, animation);
        edit(copy);
        EXPECT_FALSE(copy == animation) << "edit " << &edit - edits;
    }
}

TEST(Animation, EqualsOneOfTheSameContentInOtherPlaces) {
    const Animation animation = AnimationNamed({"one", "two"});
    Animation copy = animation;

    EditPalette(copy, [](Palette&) {});
    EditFrame(copy, 0, [](Frame&) {});

    EXPECT_NE(copy.palette, animation.palette);
    EXPECT_NE(copy.frames.At(0), animation.frames.At(0));
    EXPECT_EQ(copy, animation);
}

TEST(SelectFrames, SelectsSeveralAndMakesTheNearestCurrent) {
    Animation animation = AnimationNamed({"a", "b", "c", "d", "e"}, 4);

    EXPECT_TRUE(SelectFrames(animation, FrameSet::Of(1, 3), 0));

    EXPECT_EQ(animation.selected, 1);
    EXPECT_EQ(animation.Selection().Positions(), (std::vector<int32>{1, 2, 3}));
    EXPECT_FALSE(SelectFrames(animation, FrameSet::Of(1, 3), 0));
}

TEST(SelectFrames, OfOneFrameOrNoneSelectsThatFrameOrTheCurrentOne) {
    Animation animation = AnimationNamed({"a", "b", "c"}, 1);
    ASSERT_TRUE(SelectFrames(animation, FrameSet::AllOf(3), 1));

    EXPECT_TRUE(SelectFrames(animation, {}, 0));
    EXPECT_EQ(animation.Selection().Positions(), (std::vector<int32>{1}));

    EXPECT_TRUE(SelectFrames(animation, FrameSet::Of(2, 2), 0));
    EXPECT_EQ(animation.selected, 2);
    EXPECT_TRUE(animation.several.Empty());
}

TEST(SelectFrames, TakesNoFramesThatThereAreNot) {
    Animation animation = AnimationNamed({"a", "b", "c"}, 1);

    EXPECT_FALSE(SelectFrames(animation, FrameSet::Of(1, 3), 1));
    EXPECT_EQ(animation.selected, 1);
}

TEST(Animation, SelectsTheCurrentFrameAloneAfterEachEditOfTheList) {
    const auto selected = [](auto edit) {
        Animation animation = AnimationNamed({"a", "b", "c", "d"}, 1);
        SelectFrames(animation, FrameSet::Of(1, 2), 1);
        edit(animation);
        return animation.several.Empty();
    };

    EXPECT_FALSE(selected([](Animation&) {}));
    EXPECT_TRUE(selected([](Animation& each) { InsertFrame(each, 0, FrameOf("x")); }));
    EXPECT_TRUE(selected([](Animation& each) { RemoveSelected(each); }));
    EXPECT_TRUE(selected([](Animation& each) { SelectFrame(each, 1); }));
}

TEST(Animation, HasNoSelectionWithoutFrames) {
    EXPECT_TRUE(Animation().Selection().Empty());
}

TEST(Animation, GivesAFrameItsOwnPauseOrElseItsOwn) {
    Animation animation = AnimationNamed({"a"});
    animation.pause_length = 7;
    EXPECT_EQ(animation.PauseOf(*animation.CurrentFrame()), 0);

    animation.use_pause = true;
    EXPECT_EQ(animation.PauseOf(*animation.CurrentFrame()), 7);

    EditFrame(animation, 0, [](Frame& frame) {
        frame.use_pause = true;
        frame.pause_length = 3;
    });
    EXPECT_EQ(animation.PauseOf(*animation.CurrentFrame()), 3);
}

}  // namespace kirto::test
