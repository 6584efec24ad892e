// The document's history of edits.
#include <gtest/gtest.h>

#include "document/document_checks.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

// A document with frames a, b and c, saved.
class HistoryTest : public ::testing::Test, protected DocumentFixture {
  protected:
    HistoryTest() {
        for (const char* name : {"a", "b", "c"})
            Insert(document, name, document.FrameCount());
        document.StartHistory();
        document.MarkSaved();
    }

    template <typename Edit>
    void Step(const char* name, Edit edit) {
        document.BeginStep();
        edit();
        document.EndStep(name);
    }
    void Remove() {
        Step("Remove", [this] { document.RemoveFrame(); });
    }
    void SetWidth(int32 width) {
        Step("Set Width", [this, width] {
            document.Change([width](Animation& animation) { animation.width = width; });
            document.SetModified(true);
        });
    }
    std::string UndoName() const { return document.CurrentState()->undo_name; }
    std::string RedoName() const { return document.CurrentState()->redo_name; }
};

TEST_F(HistoryTest, HasNothingToUndoAtFirst) {
    EXPECT_EQ(UndoName(), "");
    EXPECT_EQ(RedoName(), "");
    EXPECT_FALSE(document.Undo());
    EXPECT_FALSE(document.Redo());
}

TEST_F(HistoryTest, UndoesAndRedoesWholeValues) {
    const auto first = document.Current();
    Remove();
    const auto second = document.Current();
    SetWidth(7);
    const auto third = document.Current();

    EXPECT_EQ(UndoName(), "Set Width");
    EXPECT_TRUE(document.Undo());
    EXPECT_EQ(*document.Current(), *second);
    EXPECT_EQ(RedoName(), "Set Width");
    EXPECT_EQ(UndoName(), "Remove");
    EXPECT_TRUE(document.Undo());
    EXPECT_EQ(*document.Current(), *first);
    EXPECT_FALSE(document.Undo());
    EXPECT_TRUE(document.Redo());
    EXPECT_EQ(*document.Current(), *second);
    EXPECT_TRUE(document.Redo());
    EXPECT_EQ(*document.Current(), *third);
    EXPECT_FALSE(document.Redo());
}

TEST_F(HistoryTest, RestoresTheSelectionThatWasThereBeforeTheEdit) {
    document.Select(2);
    Remove();
    document.Select(0);

    document.Undo();

    EXPECT_EQ(document.Selected(), 2);
}

TEST_F(HistoryTest, IsUnmodifiedWhereItWasSaved) {
    Remove();
    SetWidth(7);
    document.MarkSaved();
    EXPECT_FALSE(document.Modified());
    document.Undo();
    EXPECT_TRUE(document.Modified());
    document.Undo();
    EXPECT_TRUE(document.Modified());
    document.Redo();
    document.Redo();
    EXPECT_FALSE(document.Modified());
}

TEST_F(HistoryTest, CannotComeBackToASavedStateThatAnotherEditReplaced) {
    Remove();
    document.MarkSaved();
    document.Undo();
    SetWidth(7);
    document.Undo();
    EXPECT_TRUE(document.Modified());
    EXPECT_EQ(RedoName(), "Set Width");
}

TEST_F(HistoryTest, AnEditThatChangesNothingIsNoStep) {
    SetWidth(document.Current()->width);
    EXPECT_EQ(UndoName(), "");
    EXPECT_TRUE(document.Modified());
}

TEST_F(HistoryTest, AnEditEndsWhatCouldBeRedone) {
    Remove();
    document.Undo();
    SetWidth(7);
    EXPECT_EQ(RedoName(), "");
}

TEST_F(HistoryTest, AnEditThatResetsTheDocumentBringsItsFileBack) {
    document.SetFile("/pictures", "walk.gif");
    Step("Insert Animation", [this] { document.Reset(); });
    EXPECT_EQ(document.CurrentState()->file_name, "untitled");

    document.Undo();

    EXPECT_EQ(document.CurrentState()->file_name, "walk.gif");
    EXPECT_EQ(document.CurrentState()->file_directory, "/pictures");
    EXPECT_EQ(Names(document), (NameList{"a", "b", "c"}));
}

TEST_F(HistoryTest, UndoingKeepsTheNameOfALaterSave) {
    SetWidth(7);
    document.SetFile("/pictures", "copy.gif");
    document.Undo();
    EXPECT_EQ(document.CurrentState()->file_name, "copy.gif");
}

TEST_F(HistoryTest, WhatBelongsToTheLastEditIsUndoneWithIt) {
    const auto before = document.Current();
    SetWidth(7);
    document.BeginStep();
    document.Change([](Animation& animation) { animation.height = 9; });
    document.EndStepWithinLast();

    document.Undo();
    EXPECT_EQ(*document.Current(), *before);
    document.Redo();
    EXPECT_EQ(document.Current()->height, 9);
}

TEST_F(HistoryTest, ANewHistoryForgetsAllEditsAndTheOneBeingMade) {
    Remove();
    document.BeginStep();
    document.RemoveFrame();
    document.StartHistory();
    document.EndStep("Remove");
    EXPECT_EQ(UndoName(), "");
    EXPECT_FALSE(document.Undo());
}

TEST_F(HistoryTest, TheOldestStepsMakeRoomWhenPixelMemoryIsShort) {
    constexpr int32 kSide = 32;
    constexpr uint64 kPicture = kSide * kSide * 4;
    const auto append = [this](const char* name) {
        Step(name, [this, name] {
            auto picture = std::make_shared<BBitmap>(BRect::OfSize(kSide, kSide), B_RGB32,
                                                     document.pixel_budget);
            ASSERT_EQ(picture->InitCheck(), B_OK);
            // So many colors that the bitmap is kept.
            for (uint32 i = 0; i < kSide * kSide; ++i)
                std::memcpy(picture->Bits() + i * 4, &i, 4);
            Frame frame(name, kSide, kSide);
            frame.bitmap = Picture::Of(std::move(picture));
            document.InsertFrameAsCurrent(0, std::move(frame));
        });
    };
    append("first");
    const uint64 used = document.pixel_budget->Used();
    Remove();
    append("second");
    Remove();
    document.pixel_budget->SetLimit(used + kPicture);

    // Two removed pictures are kept for undoing, and there is no room for a third one beside them.
    append("third");

    EXPECT_EQ(document.FrameAt(0)->name, "third");
    EXPECT_EQ(UndoName(), "third");
    EXPECT_TRUE(document.Undo());
    int32 steps = 1;
    while (document.Undo())
        ++steps;
    EXPECT_LT(steps, 5);
}

TEST_F(HistoryTest, AThousandStepsOnManyFramesCostLittle) {
    document.Change([](Animation& animation) {
        for (int32 i = 0; i < 10000; ++i)
            InsertFrame(animation, i, std::make_shared<const Frame>());
    });
    for (int32 i = 0; i < 1000; ++i)
        SetWidth(1000 + i);
    const auto last = document.Current();
    while (document.Undo()) {
    }
    // All thousand values share all frames.
    EXPECT_EQ(document.Current()->frames.DifferenceTo(last->frames).begin, 10003);
}

}  // namespace
}  // namespace kirto::test
