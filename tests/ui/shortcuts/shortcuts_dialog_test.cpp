#include "ui/shortcuts/shortcuts_dialog.h"

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "ui/shortcuts/key_field.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

// Over two items, "Open" (Ctrl+O) and "Save" (Ctrl+S).
class ShortcutsDialogTest : public ::testing::Test {
  protected:
    ShortcutsDialogTest() {
        QMenu* menu = window.menuBar()->addMenu("&File");
        open = menu->addAction("&Open");
        open->setShortcut(QKeySequence("Ctrl+O"));
        save = menu->addAction("&Save");
        save->setShortcut(QKeySequence("Ctrl+S"));
        shortcuts = std::make_shared<MenuShortcuts>(
            *window.menuBar(), QString::fromStdString(folder.File("keys.ini")));
        dialog = new ShortcutsDialog(shortcuts, &window);
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    }

    template <typename Widget>
    Widget& Find(const char* name) const {
        return *Named<Widget>(*dialog, name);
    }
    QTreeWidget& List() const { return Find<QTreeWidget>("Shortcuts"); }
    void Choose(int row) const { List().setCurrentItem(List().topLevelItem(row)); }
    void Hit(Qt::Key key) const {
        QTest::keyClick(&Find<KeyField>("Key"), key, Qt::ControlModifier);
    }
    QString KeyInRow(int row) const { return List().topLevelItem(row)->text(2); }
    QString Note() const { return Find<QLabel>("Note").text(); }

    TemporaryFolder folder;
    QMainWindow window;
    QAction* open;
    QAction* save;
    std::shared_ptr<MenuShortcuts> shortcuts;
    QPointer<ShortcutsDialog> dialog;
};

TEST_F(ShortcutsDialogTest, ListsMenusActionsAndKeys) {
    ASSERT_EQ(List().topLevelItemCount(), 2);
    EXPECT_EQ(List().topLevelItem(0)->text(0), "File");
    EXPECT_EQ(List().topLevelItem(0)->text(1), "Open");
    EXPECT_EQ(KeyInRow(0), "Ctrl+O");
    EXPECT_EQ(KeyInRow(1), "Ctrl+S");
}

TEST_F(ShortcutsDialogTest, GivesTheChosenActionTheKeyThatIsHit) {
    Choose(1);
    Hit(Qt::Key_L);

    EXPECT_EQ(save->shortcut(), QKeySequence("Ctrl+L"));
    EXPECT_EQ(KeyInRow(1), "Ctrl+L");
    EXPECT_EQ(open->shortcut(), QKeySequence("Ctrl+O"));
}

TEST_F(ShortcutsDialogTest, AsksBeforeItTakesAKeyFromAnotherAction) {
    Choose(1);
    EXPECT_FALSE(Find<QPushButton>("TakeOver").isVisible());
    Hit(Qt::Key_O);
    EXPECT_EQ(Note(), "Ctrl+O is the key of \"Open\" in the menu \"File\".");
    EXPECT_EQ(save->shortcut(), QKeySequence("Ctrl+S"));

    Find<QPushButton>("TakeOver").click();

    EXPECT_EQ(save->shortcut(), QKeySequence("Ctrl+O"));
    EXPECT_EQ(KeyInRow(0), "");
    EXPECT_EQ(Note(), "\"Open\" no longer has Ctrl+O.");
}

TEST_F(ShortcutsDialogTest, ForgetsAKeyThatWasNotTakenOver) {
    Choose(1);
    Hit(Qt::Key_O);
    Choose(0);
    EXPECT_FALSE(Find<QPushButton>("TakeOver").isVisible());
    EXPECT_EQ(Find<KeyField>("Key").text(), "Ctrl+O");
    EXPECT_EQ(Note(), "");
}

TEST_F(ShortcutsDialogTest, RefusesAKeyForTyping) {
    QTest::keyClick(&Find<KeyField>("Key"), Qt::Key_X);

    EXPECT_TRUE(Note().startsWith("Such a key is needed for typing"));
    EXPECT_EQ(open->shortcut(), QKeySequence("Ctrl+O"));
}

TEST_F(ShortcutsDialogTest, RestoresOneKeyOrAllOfThem) {
    EXPECT_FALSE(Find<QPushButton>("Default").isEnabled());
    Hit(Qt::Key_L);
    Choose(1);
    Hit(Qt::Key_K);

    Find<QPushButton>("Default").click();
    EXPECT_EQ(save->shortcut(), QKeySequence("Ctrl+S"));
    EXPECT_EQ(open->shortcut(), QKeySequence("Ctrl+L"));
    const AlertRecorder alerts({1});
    Find<QPushButton>("RestoreDefaults").click();
    EXPECT_EQ(open->shortcut(), QKeySequence("Ctrl+O"));
}

TEST_F(ShortcutsDialogTest, KeepsAllKeysWhenRestoringThemIsCanceled) {
    Hit(Qt::Key_L);

    const AlertRecorder alerts({0});
    Find<QPushButton>("RestoreDefaults").click();

    EXPECT_EQ(open->shortcut(), QKeySequence("Ctrl+L"));
}

TEST_F(ShortcutsDialogTest, FindsActionsByNameAndByKey) {
    auto& search = Find<QLineEdit>("Search");

    search.setText("ctrl+s");
    EXPECT_TRUE(List().topLevelItem(0)->isHidden());
    EXPECT_EQ(List().currentItem(), List().topLevelItem(1));
    search.setText("open");
    EXPECT_EQ(List().currentItem(), List().topLevelItem(0));
    search.setText("neither");
    EXPECT_FALSE(Find<KeyField>("Key").isEnabled());
    Hit(Qt::Key_L);
    EXPECT_EQ(open->shortcut(), QKeySequence("Ctrl+O"));
}

TEST_F(ShortcutsDialogTest, IsOpenedOnlyOnce) {
    ShowShortcuts(shortcuts, &window);

    EXPECT_EQ(window.findChildren<QDialog*>(Qt::FindDirectChildrenOnly).size(), 1);
}

}  // namespace

}  // namespace kirto::test
