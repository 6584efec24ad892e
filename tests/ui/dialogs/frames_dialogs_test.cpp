#include "ui/dialogs/frames_dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

class FramesDialogs : public ::testing::Test {
  protected:
    FramesDialogs() {
        for (int32 i = 0; i < 10; ++i)
            InsertFrame(animation, i, FrameOf(1, 1));
        animation.use_pause = true;
        animation.pause_length = 4;
    }

    template <typename Control>
    Control& Find(const char* name) {
        return *Named<Control>(parent, name);
    }
    QPushButton& Ok() {
        return *parent.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    std::string ScopeText() { return Find<QLabel>("Scope").text().toStdString(); }
    // What the command says of that field.
    std::string Text(const char* field) const {
        std::string text;
        received.FindString(field, &text);
        return text;
    }
    int32 Number(const char* field) const {
        int32 number = -99;
        received.FindInt32(field, &number);
        return number;
    }

    QWidget parent;
    Animation animation;
    BMessage received;
    FormDialog::Receiver receive = [this](const BMessage& command) { received = command; };
};

TEST_F(FramesDialogs, MakeAFrameCurrentByItsNumber) {
    animation.selected = 3;
    AskForFrame(animation, &parent, receive);
    EXPECT_EQ(Find<QSpinBox>("Number").value(), 3);
    EXPECT_EQ(Find<QSpinBox>("Number").maximum(), 9);
    Find<QSpinBox>("Number").setValue(7);
    Ok().click();
    EXPECT_EQ(received.what, kSelectFrame);
    EXPECT_EQ(Number("number"), 7);
}

TEST_F(FramesDialogs, SelectEveryNthFrame) {
    AskForEveryNth(animation, &parent, receive);
    Find<QSpinBox>("First").setValue(1);
    Find<QSpinBox>("Step").setValue(4);
    Ok().click();

    EXPECT_EQ(received.what, kSelectFrames);
    EXPECT_EQ(Text("frames"), "1,5,9");
    HandleEvents();
    EXPECT_EQ(parent.findChild<QDialog*>(), nullptr);
}

TEST_F(FramesDialogs, SelectARangeOnlyWhereThereIsOne) {
    SelectFrames(animation, FrameSet::Of(3, 5), 3);
    AskForRange(animation, &parent, receive);
    auto& field = Find<QLineEdit>("Range");
    EXPECT_EQ(field.text(), "3-5");
    field.setText("3-10");
    EXPECT_FALSE(Ok().isEnabled());
    field.setText("3-7");
    EXPECT_TRUE(Ok().isEnabled());
    Ok().click();

    EXPECT_EQ(Text("frames"), "3-7");
}

TEST_F(FramesDialogs, DropFramesAndSayOfWhich) {
    AskForDropping(animation, &parent, receive);
    EXPECT_EQ(ScopeText().find("Works on all 10 frames, since only one is selected."), 0u);
    Find<QSpinBox>("Step").setValue(3);
    Ok().click();

    EXPECT_EQ(received.what, kDropEveryNth);
    EXPECT_EQ(Number("number"), 3);
}

TEST_F(FramesDialogs, RemoveDuplicatesAmongTheSelectedFrames) {
    SelectFrames(animation, FrameSet::Of(3, 5), 3);
    AskForTolerance(animation, &parent, receive);
    EXPECT_EQ(ScopeText().find("Works on the 3 selected frames."), 0u);
    Find<QSpinBox>("Tolerance").setValue(12);
    Ok().click();

    EXPECT_EQ(received.what, kRemoveDuplicates);
    EXPECT_EQ(Number("tolerance"), 12);
}

TEST_F(FramesDialogs, MoveFramesToAPlace) {
    AskForPlace(animation, &parent, receive);
    Find<QLineEdit>("Range").setText("7-12");
    EXPECT_FALSE(Ok().isEnabled());
    Find<QLineEdit>("Range").setText("7-9");
    Find<QSpinBox>("Place").setValue(3);
    Ok().click();

    EXPECT_EQ(received.what, kMoveFramesTo);
    EXPECT_EQ(Text("frames"), "7-9");
    EXPECT_EQ(Number("position"), 3);
}

TEST_F(FramesDialogs, MoveFramesThatAreTypedWithTheirPlace) {
    AskForPlace(animation, &parent, receive);
    QWidget& dialog = *Find<QLineEdit>("Range").window();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    for (const char key : std::string("7-9>3"))
        QTest::keyClick(dialog.focusWidget(), key);
    Ok().click();

    EXPECT_EQ(Text("frames"), "7-9");
    EXPECT_EQ(Number("position"), 3);
}

TEST_F(FramesDialogs, SetPausesInAnyUnit) {
    AskForPause(animation, false, &parent, receive);
    EXPECT_EQ(Find<QLineEdit>("Value").text(), "40ms");
    EXPECT_TRUE(Find<QRadioButton>("All").isChecked());
    Find<QLineEdit>("Value").setText("12.5 fps");
    Find<QCheckBox>("Own").setChecked(false);
    Ok().click();

    EXPECT_EQ(received.what, kSetPauses);
    EXPECT_EQ(Text("pause"), "12.5fps");
    bool value = false;
    EXPECT_EQ(received.FindBool("all", &value), B_OK);
    EXPECT_TRUE(value);
    EXPECT_EQ(received.FindBool("own", &value), B_OK);
    EXPECT_FALSE(value);
}

TEST_F(FramesDialogs, SetNoPauseThatIsNone) {
    AskForPause(animation, true, &parent, receive);
    EXPECT_EQ(Find<QLineEdit>("Value").text(), "4000ms");
    EXPECT_NE(ScopeText().find("without a unit in seconds"), std::string::npos);
    Find<QLineEdit>("Value").setText("0");
    EXPECT_TRUE(Ok().isEnabled());
    Find<QLineEdit>("Value").setText("0fps");
    EXPECT_FALSE(Ok().isEnabled());
}

TEST_F(FramesDialogs, SetPausesOfTheSelectedFrames) {
    SelectFrames(animation, FrameSet::Of(3, 5), 3);
    AskForPause(animation, false, &parent, receive);
    EXPECT_TRUE(Find<QRadioButton>("Selected").isChecked());
    Ok().click();

    bool all = true;
    EXPECT_EQ(received.FindBool("all", &all), B_OK);
    EXPECT_FALSE(all);
}

TEST_F(FramesDialogs, DoNothingWhenTheyAreCanceled) {
    AskForDropping(animation, &parent, receive);
    parent.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();

    EXPECT_EQ(received.what, 0u);
}

TEST_F(FramesDialogs, NameTheirFieldsForThoseWhoCanNotSeeThem) {
    AskForPause(animation, false, &parent, receive);

    EXPECT_EQ(Find<QLineEdit>("Value").accessibleName(), "Pause");
}

}  // namespace

}  // namespace kirto::test
