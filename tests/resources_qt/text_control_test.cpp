#include "resources/qt/text_control.h"

#include <QAction>
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
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&field, &press);
    }
    // Puts the field into a window that has Ctrl and the key as a shortcut.
    QAction& AddShortcut(Qt::Key key) {
        field.setParent(&window);
        auto* action = new QAction(&window);
        action->setShortcut(QKeySequence(Qt::CTRL | key));
        window.addAction(action);
        return *action;
    }
    // True when the field wants Ctrl and the key for itself.
    bool Overrides(Qt::Key key) {
        QKeyEvent question(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        question.ignore();
        QCoreApplication::sendEvent(&field, &question);
        return question.isAccepted();
    }
    void Leave(Qt::FocusReason reason = Qt::OtherFocusReason) {
        QFocusEvent leave(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&field, &leave);
    }

    QWidget window;
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

TEST_F(TextControls, LeaveTheShortcutsOfTheirWindowToIt) {
    AddShortcut(Qt::Key_Z);

    EXPECT_FALSE(Overrides(Qt::Key_Z));
    EXPECT_TRUE(Overrides(Qt::Key_Y)) << "Nobody else wants this one.";
}

TEST_F(TextControls, KeepTheirTextFromShortcutsThatAreDisabled) {
    AddShortcut(Qt::Key_K).setEnabled(false);
    Type("12");
    field.selectAll();

    Press(Qt::Key_K, Qt::ControlModifier);

    EXPECT_EQ(field.text(), "12");
}

TEST_F(TextControls, KeepCtrlAForTheirText) {
    AddShortcut(Qt::Key_A);
    Type("12");

    EXPECT_TRUE(Overrides(Qt::Key_A));
    Press(Qt::Key_A, Qt::ControlModifier);

    EXPECT_EQ(field.selectedText(), "12");
}

TEST_F(TextControls, KeepTheKeysOfTheClipboardForTheirText) {
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_C, Qt::Key_V})
        AddShortcut(key);
    Type("12");
    field.selectAll();

    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "12");
    EXPECT_TRUE(Overrides(Qt::Key_C));
}

TEST_F(TextControls, OutliveTheirTarget) {
    TextControl lonely("lonely", BMessage(kChanged), BMessenger());
    lonely.setModified(true);

    lonely.Commit();

    EXPECT_FALSE(lonely.IsBeingEdited());
}

}  // namespace

}  // namespace kirto::test
