#include "ui/shortcuts/menu_shortcuts.h"

#include <QMenu>
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

// "Open" and "Undo" in two menus, with a second key of "Undo", and an item without a key.
class MenuShortcutsTest : public ::testing::Test {
  protected:
    struct Bar {
        QMenuBar bar;
        QAction* open;
        QAction* undo;
        QAction* plain;

        Bar() {
            QMenu* file = bar.addMenu("&File");
            open = file->addAction("&Open...");
            open->setShortcut(QKeySequence("Ctrl+O"));
            file->addMenu("Open &Recent");
            file->addSeparator();
            QMenu* edit = bar.addMenu("&Edit");
            undo = edit->addAction("&Undo");
            undo->setShortcuts({QKeySequence("Ctrl+Z"), QKeySequence("Ctrl+Y")});
            plain = edit->addAction("&Plain");
        }
    };
    enum Place : size_t { kOpen, kUndo, kPlain };

    MenuShortcuts Make(const Bar& bar) const { return MenuShortcuts(bar.bar, path); }
    // The keys of an item in a menu bar that is made now.
    QString KeysNow(QAction* Bar::*item) const {
        const Bar bar;
        const MenuShortcuts shortcuts = Make(bar);
        return QKeySequence::listToString((bar.*item)->shortcuts());
    }
    void WriteFile(const std::string& text) const {
        WriteBytes(path.toStdString(), {text.begin(), text.end()});
    }

    TemporaryFolder folder;
    QString path = QString::fromStdString(folder.File("keys.ini"));
};

TEST_F(MenuShortcutsTest, ListsAllItemsOfTheMenusButSeparatorsAndSubmenus) {
    const Bar bar;
    const MenuShortcuts shortcuts = Make(bar);
    QStringList items;
    for (const MenuShortcuts::Item& item : shortcuts.Items())
        items.append(item.menu + "/" + item.label);

    EXPECT_EQ(items, (QStringList{"File/Open...", "Edit/Undo", "Edit/Plain"}));
}

TEST_F(MenuShortcutsTest, RemembersTheKeyOfAnItemAndLeavesTheOthersToTheProgram) {
    const Bar bar;
    EXPECT_TRUE(Make(bar).SetKey(kOpen, QKeySequence("Ctrl+Shift+L")));
    EXPECT_EQ(bar.open->shortcut(), QKeySequence("Ctrl+Shift+L"));

    EXPECT_EQ(KeysNow(&Bar::open), "Ctrl+Shift+L");
    EXPECT_EQ(KeysNow(&Bar::undo), "Ctrl+Z; Ctrl+Y");
}

TEST_F(MenuShortcutsTest, RemembersThatAnItemHasNoKey) {
    const Bar bar;
    Make(bar).SetKey(kOpen, {});

    EXPECT_EQ(KeysNow(&Bar::open), "");
}

TEST_F(MenuShortcutsTest, TakesAKeyFromTheItemThatHadItAndLeavesThatTheOther) {
    const Bar bar;
    MenuShortcuts shortcuts = Make(bar);
    ASSERT_EQ(shortcuts.OwnerOf(QKeySequence("Ctrl+Y")), std::optional<size_t>(kUndo));

    shortcuts.SetKey(kPlain, QKeySequence("Ctrl+Y"));

    EXPECT_EQ(shortcuts.OwnerOf(QKeySequence("Ctrl+Y")), std::optional<size_t>(kPlain));
    EXPECT_EQ(KeysNow(&Bar::undo), "Ctrl+Z");
    EXPECT_EQ(KeysNow(&Bar::plain), "Ctrl+Y");
}

TEST_F(MenuShortcutsTest, GivesAnItemItsOwnKeysBackFromWhoeverHasThem) {
    const Bar bar;
    MenuShortcuts shortcuts = Make(bar);
    shortcuts.SetKey(kPlain, QKeySequence("Ctrl+Y"));

    EXPECT_TRUE(shortcuts.Restore(kUndo));

    EXPECT_EQ(KeysNow(&Bar::undo), "Ctrl+Z; Ctrl+Y");
    EXPECT_EQ(KeysNow(&Bar::plain), "");
}

TEST_F(MenuShortcutsTest, GivesAllItemsTheirOwnKeysBack) {
    const Bar bar;
    MenuShortcuts shortcuts = Make(bar);
    shortcuts.SetKey(kOpen, QKeySequence("Ctrl+Y"));
    shortcuts.SetKey(kPlain, QKeySequence("Ctrl+O"));

    EXPECT_TRUE(shortcuts.RestoreAll());

    EXPECT_EQ(KeysNow(&Bar::open), "Ctrl+O");
    EXPECT_EQ(KeysNow(&Bar::undo), "Ctrl+Z; Ctrl+Y");
    EXPECT_EQ(KeysNow(&Bar::plain), "");
}

TEST_F(MenuShortcutsTest, UseWhatIsUsableInAFileThatSomebodyElseHasWritten) {
    WriteFile(
        "[keys]\nFile%3A%20Open...=X, Ctrl+Q, , \"Ctrl+K, Ctrl+C\", \x01\x02\n"
        "Edit%3A%20Plain=Ctrl+Q\nNo%20such=Ctrl+Z\n=\n[");

    EXPECT_EQ(KeysNow(&Bar::undo), "Ctrl+Z; Ctrl+Y");
    EXPECT_EQ(KeysNow(&Bar::plain), "Ctrl+Q");
    EXPECT_EQ(KeysNow(&Bar::open), "");
}

TEST_F(MenuShortcutsTest, SayWhereTheFileCannotBeWritten) {
    path = "/proc/none/keys.ini";
    const Bar bar;

    EXPECT_FALSE(Make(bar).SetKey(kOpen, QKeySequence("Ctrl+Q")));
    EXPECT_EQ(bar.open->shortcut(), QKeySequence("Ctrl+Q"));
}

TEST_F(MenuShortcutsTest, RefuseKeysThatTypeOrMoveOrOpenMenus) {
    for (const char* usable : {"Ctrl+K", "Ctrl+Shift+1", "Meta+K", "Ctrl+Alt+K", "F5", "Shift+F12"})
        EXPECT_TRUE(MenuShortcuts::IsUsable(QKeySequence(usable))) << usable;
    for (const char* other : {"", "K", "Shift+K", "Alt+F", "Left", "Space", "Ctrl+K, Ctrl+C"})
        EXPECT_FALSE(MenuShortcuts::IsUsable(QKeySequence(other))) << other;
}

}  // namespace

}  // namespace kirto::test
