#include "ui/shell/frame_commands.h"

#include <QDialog>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/test_support.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

class FrameCommands : public ::testing::Test {
  protected:
    FrameCommands() {
        ShowFrames(shown, fixture.document, SameFrames(6, 1, 1), 2);
        Animation next = *fixture.document.Current();
        SelectFrames(next, FrameSet::Of(2, 3), 2);
        fixture.document.Commit(std::move(next));
        shown.Take(fixture.document);
    }

    // The frames that the item selects; the name of its dialog where it opens one.
    std::string ChosenBy(uint32 item) {
        std::string frames;
        ChooseFrames(item, shown, &parent,
                     [&](const BMessage& message) { message.FindString("frames", &frames); });
        const auto* dialog = parent.findChild<QDialog*>();
        if (!dialog) return frames;
        std::string name = dialog->objectName().toStdString();
        delete dialog;
        return name;
    }

    DocumentFixture fixture;
    ShownDocument shown;
    QWidget parent;
};

TEST_F(FrameCommands, SelectAtOnce) {
    EXPECT_EQ(ChosenBy(kMenuSelectAll), "0-5");
    EXPECT_EQ(ChosenBy(kMenuSelectNone), "none");
    EXPECT_EQ(ChosenBy(kMenuInvertSelection), "0-1,4-5");
}

TEST_F(FrameCommands, AskFirst) {
    EXPECT_EQ(ChosenBy(kMenuSelectEvery), "SelectEvery");
    EXPECT_EQ(ChosenBy(kMenuSelectRange), "SelectRange");
    EXPECT_EQ(ChosenBy(kMenuGoToFrame), "GoToFrame");
    EXPECT_EQ(ChosenBy(kMenuDropEvery), "DropEvery");
    EXPECT_EQ(ChosenBy(kMenuRemoveDuplicates), "RemoveDuplicates");
    EXPECT_EQ(ChosenBy(kMenuSetPause), "SetPause");
    EXPECT_EQ(ChosenBy(kMenuMoveTo), "MoveTo");
    EXPECT_EQ(ChosenBy(kMenuResize), "ResizeAnimation");
    EXPECT_EQ(ChosenBy(kMenuCrop), "CropAnimation");
    EXPECT_EQ(ChosenBy(kMenuCanvasSize), "CanvasSize");
    EXPECT_EQ(ChosenBy(kMenuFitFrames), "FitFrames");
    EXPECT_EQ(ChosenBy(kMenuAdjustColors), "AdjustColors");
    EXPECT_EQ(ChosenBy(kMenuOpacity), "Opacity");
    EXPECT_EQ(ChosenBy(kMenuOverlay), "OverlayImage");
    EXPECT_EQ(ChosenBy(kMenuText), "Text");
    EXPECT_EQ(ChosenBy(kMenuMakeTransparent), "MakeTransparent");
}

TEST_F(FrameCommands, TurnAtOnce) {
    const auto sent = [this](uint32 item) {
        BMessage command;
        ChooseFrames(item, shown, &parent, [&](const BMessage& message) { command = message; });
        return command;
    };
    int32 quarters = 0;
    EXPECT_EQ(sent(kMenuRotateLeft).FindInt32("quarters", &quarters), B_OK);
    EXPECT_EQ(quarters, 3);
    EXPECT_EQ(sent(kMenuRotateRight).FindInt32("quarters", &quarters), B_OK);
    EXPECT_EQ(quarters, 1);
    bool across = false;
    EXPECT_EQ(sent(kMenuFlipAcross).FindBool("across", &across), B_OK);
    EXPECT_TRUE(across);
    EXPECT_EQ(sent(kMenuFlipDown).FindBool("across", &across), B_OK);
    EXPECT_FALSE(across);
}

}  // namespace

}  // namespace kirto::test
