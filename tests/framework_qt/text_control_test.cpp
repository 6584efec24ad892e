#include "framework/qt/text_control.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint32 kChanged = FourCharCode("chng");

class TextControls : public ::testing::Test {
  protected:
    void Type(const QString& text) {
        for (const QChar character : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(&field, &press);
        }
    }
    void Press(int key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&field, &press);
    }
    void Leave(Qt::FocusReason reason = Qt::OtherFocusReason) {
        QFocusEvent leave(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&field, &leave);
    }

    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    TextControl field{"Loop count", BMessage(kChanged), BMessenger(port)};
};

TEST_F(TextControls, CarryTheirNameAsObjectNameAndForReaders) {
    EXPECT_EQ(field.objectName(), "Loop count");
    EXPECT_EQ(field.accessibleName(), "Loop count");
}

TEST_F(TextControls, SendTheirCommandWithTheEnterKey) {
    Type("12");
    EXPECT_EQ(port->Transcript(), "");
    EXPECT_TRUE(field.IsBeingEdited());

    Press(Qt::Key_Return);

    EXPECT_EQ(port->Transcript(), "chng");
    EXPECT_FALSE(field.IsBeingEdited());
    EXPECT_EQ(field.text(), "12");
}

TEST_F(TextControls, SendTheirCommandWhenTheyAreLeft) {
    Type("1");

    Leave();

    EXPECT_EQ(port->Transcript(), "chng");
}

TEST_F(TextControls, SendTheirMessageWithItsFields) {
    BMessage message(kChanged);
    message.AddInt32("index", 3);
    TextControl other("other", message, BMessenger(port));
    other.setModified(true);

    other.Commit();

    ASSERT_EQ(port->Messages().size(), 1u);
    EXPECT_EQ(port->Messages().front(), message);
}

TEST_F(TextControls, SendAnEditOnlyOnce) {
    Type("1");

    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    Leave();
    field.Commit();

    EXPECT_EQ(port->Transcript(), "chng");
}

TEST_F(TextControls, SendTheNextEditToo) {
    Type("1");
    Press(Qt::Key_Return);
    Type("2");
    Press(Qt::Key_Enter);

    EXPECT_EQ(port->Transcript(), "chng chng");
}

TEST_F(TextControls, SendNothingWhenNothingWasTyped) {
    field.SetText("5");

    Press(Qt::Key_Return);
    Leave();
    field.Commit();

    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(TextControls, SendTheirCommandWhenAMenuTakesTheKeyboard) {
    Type("1");

    Leave(Qt::PopupFocusReason);

    EXPECT_EQ(port->Transcript(), "chng");
}

TEST_F(TextControls, ShowTextOfTheProgramWithoutSendingAnything) {
    field.ShowText("7");

    EXPECT_EQ(field.text(), "7");
    EXPECT_FALSE(field.IsBeingEdited());
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(TextControls, KeepWhatIsTypedWhenTheProgramShowsText) {
    Type("12");

    field.ShowText("7");

    EXPECT_EQ(field.text(), "12");
    EXPECT_TRUE(field.IsBeingEdited());
}

TEST_F(TextControls, EndAnEditWhenTheProgramSetsText) {
    Type("12");

    field.SetText("7");
    Leave();

    EXPECT_EQ(field.text(), "7");
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(TextControls, EndAnEditThatTypedJustTheTextThatTheProgramSets) {
    Type("7");

    field.SetText("7");

    EXPECT_EQ(field.text(), "7");
    EXPECT_FALSE(field.IsBeingEdited());
}

TEST_F(TextControls, KeepTheCursorWhenTheTextIsTheSame) {
    field.SetText("123");
    field.setCursorPosition(1);

    field.ShowText("123");

    EXPECT_EQ(field.cursorPosition(), 1);
}

TEST_F(TextControls, OutliveTheirTarget) {
    TextControl lonely("lonely", BMessage(kChanged), BMessenger());
    lonely.setModified(true);

    lonely.Commit();

    EXPECT_FALSE(lonely.IsBeingEdited());
}

}  // namespace

}  // namespace kirto::test
