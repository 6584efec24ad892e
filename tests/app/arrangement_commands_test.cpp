#include "app/arrangement_commands.h"

#include <gtest/gtest.h>
#include <string>

#include "app/kirto_fixture.h"
#include "document/command_codes.h"

namespace kirto::test {

namespace {

class ArrangementCommands : public KirtoFixture {
  protected:
    ArrangementCommands() {
        Make();
        Append({"a", "b", "c", "d", "e"});
        app_->StartHistory();
        app_->SetModified(false);
    }

    void Select(const char* frames) {
        BMessage message(kSelectFrames);
        message.AddString("frames", frames);
        app_->MessageReceived(&message);
    }

    void Carry(BMessage message) { app_->MessageReceived(&message); }

    std::string Names() const {
        std::string names;
        for (const FramePointer& frame : app_->Current()->frames)
            names += frame->name;
        return names;
    }

    std::string SelectedNames() const {
        std::string names;
        for (const int32 i : app_->Current()->Selection().Positions())
            names += app_->FrameAt(i)->name;
        return names;
    }

    static BMessage WithNumber(uint32 code, const char* field, int32 number) {
        BMessage message(code);
        message.AddInt32(field, number);
        return message;
    }
};

TEST_F(ArrangementCommands, SelectingSeveralFramesIsNoEdit) {
    Select("1-2,4");

    EXPECT_EQ(SelectedNames(), "bce");
    EXPECT_FALSE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->undo_steps, 0);
}

TEST_F(ArrangementCommands, SelectNothingThatThereIsNot) {
    Select("1-2");
    Select("3-9");
    Select("x");
    Carry(BMessage(kSelectFrames));

    EXPECT_EQ(SelectedNames(), "bc");
}

TEST_F(ArrangementCommands, SelectingAFrameSelectsItAlone) {
    Select("0-3");
    Carry(WithNumber(kSelectFrame, "number", app_->Selected()));

    EXPECT_EQ(SelectedNames(), "a");
}

TEST_F(ArrangementCommands, TheFrameMenuWorksOnAllSelectedFrames) {
    Select("1-2");
    Carry(BMessage(kMoveFrameDown));
    EXPECT_EQ(Names(), "adbce");
    Carry(BMessage(kReverseFrames));
    EXPECT_EQ(Names(), "adcbe");
    Carry(BMessage(kRemoveFrame));
    EXPECT_EQ(Names(), "ade");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(ArrangementCommands, UndoBringsTheSelectionBack) {
    Select("1-2");
    Carry(BMessage(kRemoveFrame));
    Carry(BMessage(kUndo));

    EXPECT_EQ(Names(), "abcde");
    EXPECT_EQ(SelectedNames(), "bc");
}

TEST_F(ArrangementCommands, FieldsOfTheFrameAreSetForAllSelectedOnes) {
    Select("0,2");
    BMessage offset(kFrameSetXOffset);
    offset.AddInt32("value", 7);
    Carry(offset);
    Carry(BMessage(kFrameGreyscale));

    for (int32 i = 0; i < 5; ++i) {
        const bool selected = i == 0 || i == 2;
        EXPECT_EQ(app_->FrameAt(i)->x_offset, selected ? 7 : 0);
        EXPECT_EQ(app_->FrameAt(i)->palette->mode == kPaletteGreyscale, selected);
    }
}

TEST_F(ArrangementCommands, MoveAndCopyToAPlace) {
    Select("3-4");
    Carry(WithNumber(kMoveFramesTo, "position", 0));
    EXPECT_EQ(Names(), "deabc");
    Carry(WithNumber(kCopyFramesTo, "position", 5));
    EXPECT_EQ(Names(), "deabcde");
    Carry(BMessage(kDuplicateFrames));
    EXPECT_EQ(Names(), "deabcdede");
    EXPECT_EQ(app_->CurrentState()->undo_name, "Duplicate");
}

TEST_F(ArrangementCommands, DoNothingWithoutTheirFields) {
    for (const uint32 code : {kMoveFramesTo, kCopyFramesTo, kDropEveryNth, kSetPauses}) {
        Carry(BMessage(code));
        EXPECT_EQ(Names(), "abcde");
    }
    EXPECT_FALSE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->undo_steps, 0);
}

TEST_F(ArrangementCommands, PlayBackDropAndShift) {
    Carry(BMessage(kForwardAndBack));
    EXPECT_EQ(Names(), "abcdedcb");
    Carry(BMessage(kUndo));
    Carry(WithNumber(kDropEveryNth, "number", 2));
    EXPECT_EQ(Names(), "ace");
    Carry(WithNumber(kSelectFrame, "number", 1));
    Carry(BMessage(kStartAtCurrent));
    EXPECT_EQ(Names(), "cea");
}

TEST_F(ArrangementCommands, RemoveDuplicatesWithinATolerance) {
    // All pictures of the fixture are alike but for their number.
    const int32 before = app_->FrameCount();
    Carry(WithNumber(kRemoveDuplicates, "tolerance", 999));

    EXPECT_LT(app_->FrameCount(), before);
    EXPECT_EQ(app_->CurrentState()->undo_name, "Remove Duplicates");
}

TEST_F(ArrangementCommands, SetPausesInTheUnitOfTheSettings) {
    Select("1-2");
    BMessage message(kSetPauses);
    message.AddString("pause", "500ms");
    Carry(message);
    EXPECT_EQ(app_->FrameAt(1)->pause_length, 50);
    EXPECT_FALSE(app_->FrameAt(0)->use_pause);

    app_->prefs.global_pauseinseconds = true;
    message.AddBool("all", true);
    message.AddBool("own", false);
    Carry(message);
    EXPECT_EQ(app_->Current()->pause_length, 0.5);
    EXPECT_EQ(app_->FrameAt(1)->pause_length, 50);
}

TEST_F(ArrangementCommands, InsertionSelectsWhatItInsertedAlone) {
    Select("all");
    app_->InsertFrameAsCurrent(2, Frame("x", 1, 1));

    EXPECT_EQ(SelectedNames(), "x");
}

}  // namespace

}  // namespace kirto::test
