#include "document/field_table.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "document/command_codes.h"

namespace kirto::test {

namespace {

// What a row of the table promises, and where its value should be found.
struct Row {
    uint32 code;
    const char* name;
    Field::Bound bound;
    std::function<double(const Animation&)> value;
};

const Frame& CurrentOf(const Animation& animation) {
    return *animation.CurrentFrame();
}

const std::vector<Row>& Rows() {
    using Bound = Field::Bound;
    using A = const Animation&;
    static const std::vector<Row> rows = {
        {kSetWidth, "Width", Bound::kFromZero, [](A a) { return a.width; }},
        {kSetHeight, "Height", Bound::kFromZero, [](A a) { return a.height; }},
        {kUsePause, "Pause", Bound::kNone, [](A a) { return a.use_pause; }},
        {kSetPauseLength, "Pause length", Bound::kFromZero, [](A a) { return a.pause_length; }},
        {kUseLoop, "Loop", Bound::kNone, [](A a) { return a.use_loop; }},
        {kSetLoopCount, "Loop count", Bound::kFromZero, [](A a) { return a.loop_count; }},
        {kSetBackgroundIndex, "Background index", Bound::kPaletteIndex,
         [](A a) { return a.palette->background_index; }},
        {kUseTransparent, "Transparent", Bound::kNone,
         [](A a) { return a.palette->use_transparent; }},
        {kSetTransparentIndex, "Transparent index", Bound::kPaletteIndex,
         [](A a) { return a.palette->transparent_index; }},
        {kSetDither, "Dither", Bound::kNone, [](A a) { return a.palette->dither; }},
        {kFrameSetXOffset, "XOffset", Bound::kFromZero, [](A a) { return CurrentOf(a).x_offset; }},
        {kFrameSetYOffset, "YOffset", Bound::kFromZero, [](A a) { return CurrentOf(a).y_offset; }},
        {kFrameUsePause, "Pause", Bound::kNone, [](A a) { return CurrentOf(a).use_pause; }},
        {kFrameSetPauseLength, "Pause length", Bound::kFromZero,
         [](A a) { return CurrentOf(a).pause_length; }},
        {kFrameUsePalette, "Palette", Bound::kNone, [](A a) { return CurrentOf(a).local_palette; }},
    };
    return rows;
}

// What the field holds, whatever its type.
double NumberIn(const Field& field, const Animation& animation) {
    return std::visit([](auto value) { return double(value); }, field.In(animation));
}

// Of two frames, the second one current.
Animation TwoFrames() {
    Animation animation;
    InsertFrame(animation, 0, std::make_shared<const Frame>());
    InsertFrame(animation, 1, std::make_shared<const Frame>());
    SelectFrame(animation, 1);
    return animation;
}

// The command that sets a field, with a value of the field's type.
BMessage CommandOf(uint32 code, int32 value) {
    BMessage command(code);
    const Field& field = *FieldOf(code);
    if (field.bound == Field::Bound::kNone) {
        command.AddBool("value", value != 0);
    } else if (field.IsReal()) {
        command.AddDouble("value", value);
    } else {
        command.AddInt32("value", value);
    }
    return command;
}

}  // namespace

TEST(FieldTable, NamesAndBoundsEachField) {
    for (const Row& row : Rows()) {
        const Field* field = FieldOf(row.code);
        ASSERT_NE(field, nullptr) << row.name;
        EXPECT_EQ(field->code, row.code);
        EXPECT_STREQ(field->name, row.name);
        EXPECT_EQ(field->bound, row.bound) << row.name;
    }
}

TEST(FieldTable, HasNoFieldForOtherCommands) {
    EXPECT_EQ(FieldOf(kUpdateAll), nullptr);
    EXPECT_EQ(FieldOf(0), nullptr);
}

TEST(FieldTable, SetsTheMemberThatEachRowNamesAndNoOther) {
    for (const Row& row : Rows()) {
        Animation animation = TwoFrames();

        EXPECT_TRUE(FieldOf(row.code)->Set(animation, CommandOf(row.code, 1))) << row.name;

        const FramePointer other = TwoFrames().FirstFrame();
        for (const Row& any : Rows())
            EXPECT_EQ(any.value(animation) == 1, any.code == row.code) << row.name << any.name;
        EXPECT_EQ(animation.frames.At(0)->x_offset, other->x_offset);
        EXPECT_EQ(animation.frames.At(0)->y_offset, other->y_offset);
        EXPECT_EQ(animation.frames.At(0)->pause_length, other->pause_length);
        EXPECT_FALSE(animation.frames.At(0)->use_pause || animation.frames.At(0)->local_palette);
    }
}

TEST(FieldTable, TakesNumbersAsTheyAre) {
    for (const Row& row : Rows()) {
        if (row.bound == Field::Bound::kNone) continue;
        Animation animation = TwoFrames();

        EXPECT_TRUE(FieldOf(row.code)->Set(animation, CommandOf(row.code, 77)));

        EXPECT_EQ(row.value(animation), 77) << row.name;
    }
}

TEST(FieldTable, ACommandWithoutAValueChangesNothing) {
    for (const Row& row : Rows()) {
        const Animation before = TwoFrames();
        Animation animation = before;
        BMessage elsewhere(row.code);
        elsewhere.AddInt32("other", 1);
        BMessage of_wrong_type(row.code);
        of_wrong_type.AddString("value", "1");

        EXPECT_FALSE(FieldOf(row.code)->Set(animation, elsewhere));
        EXPECT_FALSE(FieldOf(row.code)->Set(animation, of_wrong_type));

        EXPECT_EQ(animation, before) << row.name;
    }
}

TEST(FieldTable, WithoutACurrentFrameItsFieldsStayUnset) {
    int32 of_frames = 0;
    for (const Row& row : Rows()) {
        Animation animation;
        const bool of_frame = FieldOf(row.code)->IsOfFrame();

        EXPECT_EQ(FieldOf(row.code)->Set(animation, CommandOf(row.code, 1)), !of_frame) << row.name;

        EXPECT_EQ(animation == Animation(), of_frame) << row.name;
        of_frames += of_frame ? 1 : 0;
    }
    EXPECT_EQ(of_frames, 5);
}

TEST(FieldTable, HoldsWhatTheMemberThatEachRowNamesDoes) {
    for (const Row& row : Rows()) {
        Animation animation = TwoFrames();
        FieldOf(row.code)->Set(animation, CommandOf(row.code, 1));

        for (const Row& any : Rows())
            EXPECT_EQ(NumberIn(*FieldOf(any.code), animation), any.value(animation)) << any.name;
    }
}

TEST(FieldTable, HoldsNothingOfAFrameWithoutACurrentOne) {
    for (const Row& row : Rows()) {
        const Field& field = *FieldOf(row.code);
        if (!field.IsOfFrame()) continue;
        EXPECT_EQ(NumberIn(field, Animation()), 0) << row.name;
    }
}

TEST(FieldTable, LeavesTheAnimationThatOthersHold) {
    const Animation before = TwoFrames();
    Animation animation = before;

    FieldOf(kSetDither)->Set(animation, CommandOf(kSetDither, 1));
    FieldOf(kFrameSetXOffset)->Set(animation, CommandOf(kFrameSetXOffset, 3));

    EXPECT_FALSE(before.palette->dither);
    EXPECT_EQ(before.CurrentFrame()->x_offset, 0);
    EXPECT_EQ(animation.CurrentFrame()->id, before.CurrentFrame()->id);
}

TEST(Field, AllowsAsIndexWhatTheGlobalPaletteHolds) {
    Animation animation;
    for (const int32 bits : {1, 4, 8}) {
        EditPalette(animation, [bits](Palette& palette) { palette.bits = bits; });
        EXPECT_EQ(FieldOf(kSetTransparentIndex)->Largest(animation), (1 << bits) - 1);
        EXPECT_EQ(FieldOf(kSetBackgroundIndex)->Largest(animation), (1 << bits) - 1);
    }
    EXPECT_EQ(FieldOf(kSetWidth)->Largest(animation), -1);
    EXPECT_EQ(FieldOf(kUseLoop)->Largest(animation), -1);
}

TEST(Field, IsRealWhereItHoldsAPause) {
    for (const Row& row : Rows()) {
        const bool pause = row.code == kSetPauseLength || row.code == kFrameSetPauseLength;
        EXPECT_EQ(FieldOf(row.code)->IsReal(), pause) << row.name;
    }
}

}  // namespace kirto::test
