#include "ui/shell/main_menu.h"

#include <QAction>
#include <QMainWindow>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "document/command_codes.h"
#include "support/test_support.h"

namespace kirto::test {

using Lines = std::vector<std::string>;

namespace {

class MainMenu : public ::testing::Test {
  protected:
    // Each item as "label|shortcut|command", a separator as "-".
    Lines ItemsOf(const QMenu& menu) {
        Lines lines;
        for (QAction* action : menu.actions()) {
            if (action->isSeparator()) {
                lines.emplace_back("-");
                continue;
            }
            chosen.clear();
            action->trigger();
            lines.push_back(action->text().remove('&').toStdString() + "|" +
                            action->shortcut().toString().toStdString() + "|" + chosen);
        }
        return lines;
    }
    QMenu& MenuAt(int index) { return *bar->actions().at(index)->menu(); }

    QMainWindow window;
    std::string chosen;
    QMenuBar* bar = MakeMainMenu(&window, [this](uint32 code) { chosen += CodeText(code); });
};

TEST_F(MainMenu, HasItsMenusWithEditBetweenFileAndView) {
    Lines titles;
    for (const QAction* action : bar->actions())
        titles.push_back(action->text().remove('&').toStdString());

    EXPECT_EQ(bar->objectName(), "MenuBar");
    EXPECT_EQ(titles, (Lines{"File", "Edit", "View", "Frame", "Animation"}));
}

TEST_F(MainMenu, HasTheItemsOfTheFileMenu) {
    EnableFrameItems(*bar, true);

    EXPECT_EQ(ItemsOf(MenuAt(0)),
              (Lines{"New|Ctrl+N|awfn", "Open...|Ctrl+O|awfo", "-", "Save|Ctrl+S|awfs",
                     "Save As...|Ctrl+A|awfa", "-", "About...||_ABR", "-", "Quit|Ctrl+Q|_QRQ"}));
}

TEST_F(MainMenu, HasTheItemsOfTheEditMenu) {
    ShowHistory(*bar, "Remove Frame", "Reverse Frames");
    EnableFrameItems(*bar, true);

    const auto item = [](const char* text, uint32 code) { return text + CodeText(code); };
    EXPECT_EQ(
        ItemsOf(MenuAt(1)),
        (Lines{item("Undo Remove Frame|Ctrl+Z|", kUndo),
               item("Redo Reverse Frames|Ctrl+Shift+Z|", kRedo), "-", item("Cut|Ctrl+X|", kMenuCut),
               item("Copy|Ctrl+C|", kMenuCopy), item("Paste|Ctrl+V|", kMenuPaste),
               item("Duplicate|Ctrl+Shift+U|", kDuplicateFrames),
               item("Move To...|Ctrl+B|", kMenuMoveTo), "-",
               item("Select All|Ctrl+Shift+A|", kMenuSelectAll),
               item("Select None||", kMenuSelectNone),
               item("Invert Selection|Ctrl+Shift+I|", kMenuInvertSelection),
               item("Select Every Nth...||", kMenuSelectEvery),
               item("Select Range...|Ctrl+G|", kMenuSelectRange),
               item("Go to Frame...|Ctrl+J|", kMenuGoToFrame)}));
}

TEST_F(MainMenu, HasTheItemsOfTheAnimationMenu) {
    EnableFrameItems(*bar, true);

    const auto item = [](const char* text, uint32 code) { return text + CodeText(code); };
    EXPECT_EQ(ItemsOf(MenuAt(4)), (Lines{item("Insert Animation...||", kMenuInsertAnimation),
                                         item("Export...|Ctrl+E|", kMenuExport),
                                         item("Export Sheet...||", kMenuExportSheet),
                                         "-",
                                         item("Set Pause...|Ctrl+L|", kMenuSetPause),
                                         "-",
                                         item("Forward and Back||", kForwardAndBack),
                                         item("Shift Start to Current Frame||", kStartAtCurrent),
                                         item("Remove Duplicates...||", kMenuRemoveDuplicates),
                                         item("Drop Every Nth...||", kMenuDropEvery),
                                         "-",
                                         item("Resize Animation...||", kMenuResize),
                                         item("Crop...||", kMenuCrop),
                                         item("Canvas Size...||", kMenuCanvasSize),
                                         item("Rotate Right||", kMenuRotateRight),
                                         item("Rotate Left||", kMenuRotateLeft),
                                         item("Flip Horizontally||", kMenuFlipAcross),
                                         item("Flip Vertically||", kMenuFlipDown),
                                         "-",
                                         item("Fit Frames to Animation...||", kMenuFitFrames),
                                         item("Adjust Colors...||", kMenuAdjustColors),
                                         item("Opacity...||", kMenuOpacity),
                                         item("Overlay Image...||", kMenuOverlay),
                                         item("Text...||", kMenuText),
                                         item("Make Transparent...||", kMenuMakeTransparent)}));
}

TEST_F(MainMenu, SaysWhetherAllOrTheSelectedFramesAreReversed) {
    const QAction* reverse = bar->findChild<QAction*>("Reverse");

    ShowReversing(*bar, true);
    EXPECT_EQ(reverse->text(), "Re&verse Selected");
    ShowReversing(*bar, false);
    EXPECT_EQ(reverse->text(), "Re&verse All");
}

TEST_F(MainMenu, SaysWhetherThePlayerIsShown) {
    const QAction* player = bar->findChild<QAction*>("Player");

    ShowPlayer(*bar, true);
    EXPECT_EQ(player->text(), "Hide Pla&yer");
    ShowPlayer(*bar, false);
    EXPECT_EQ(player->text(), "Show Pla&yer");
}

TEST_F(MainMenu, SaysWhetherThumbnailsHaveLabels) {
    const QAction* labels = bar->findChild<QAction*>("Labels");

    ShowLabels(*bar, false);
    EXPECT_EQ(labels->text(), "Show Frame &Labels");
    ShowLabels(*bar, true);
    EXPECT_EQ(labels->text(), "Hide Frame &Labels");
}

TEST_F(MainMenu, RedoesWithTheKeysOfEitherHabit) {
    const QAction* redo = MenuAt(1).actions().at(1);

    EXPECT_EQ(redo->shortcuts(),
              (QList<QKeySequence>{QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")}));
}

TEST_F(MainMenu, NamesTheEditsThatCanBeUndoneAndRedoneAndDisablesWhatHasNone) {
    const QAction* undo = MenuAt(1).actions().at(0);
    const QAction* redo = MenuAt(1).actions().at(1);
    const auto expect = [&](const QString& undo_text, const QString& redo_text) {
        EXPECT_EQ(undo->text(), "&" + undo_text);
        EXPECT_EQ(redo->text(), "&" + redo_text);
        EXPECT_EQ(undo->isEnabled(), undo_text != "Undo");
        EXPECT_EQ(redo->isEnabled(), redo_text != "Redo");
    };

    expect("Undo", "Redo");
    ShowHistory(*bar, "Remove Frame", "");
    expect("Undo Remove Frame", "Redo");
    ShowHistory(*bar, "", "Remove Frame");
    expect("Undo", "Redo Remove Frame");
    ShowHistory(*bar, "", "");
    expect("Undo", "Redo");
}

TEST_F(MainMenu, EnablesUndoForAnEditThatTheHistoryDoesNotHaveYet) {
    const QAction* undo = MenuAt(1).actions().at(0);

    EnableUndo(*bar);
    EXPECT_TRUE(undo->isEnabled());
    EXPECT_EQ(undo->text(), "&Undo");

    ShowHistory(*bar, "", "");
    EXPECT_FALSE(undo->isEnabled());
}

TEST_F(MainMenu, HasTheItemsOfTheViewMenu) {
    EnableFrameItems(*bar, true);

    EXPECT_EQ(ItemsOf(MenuAt(2)),
              (Lines{"Preview|Ctrl+P|awvp", "Toggle Mode|Ctrl+M|awvm", "-", "Preferences...||awvr",
                     "-", "Show Player|Ctrl+Shift+P|wvpl", "Play or Pause|Ctrl+K|wply",
                     "Hide Frame Labels||wvlb", "Colors...||wvco"}));
}

TEST_F(MainMenu, HasTheItemsOfTheFrameMenu) {
    EnableFrameItems(*bar, true);

    EXPECT_EQ(ItemsOf(MenuAt(3)),
              (Lines{"Insert...|Ctrl+I|awfi", "Insert Tiled...|Ctrl+T|awit", "Remove|Ctrl+R|awfr",
                     "-", "Move Up|Ctrl+U|awfu", "Move Down|Ctrl+D|awfd", "Reverse All||awfv", "-",
                     "Fade Effects...|Ctrl+F|awfe"}));
}

TEST_F(MainMenu, GivesEachItemOfAMenuAKeyOfItsOwn) {
    for (const QAction* menu_action : bar->actions()) {
        QString keys;
        for (const QAction* action : menu_action->menu()->actions()) {
            if (action->isSeparator()) continue;
            const auto at = action->text().indexOf('&');
            ASSERT_GE(at, 0) << action->text().toStdString();
            const QChar key = action->text().at(at + 1).toUpper();
            EXPECT_FALSE(keys.contains(key)) << action->text().toStdString();
            keys += key;
        }
    }
}

TEST_F(MainMenu, KeepsItsItemsInTheirMenusOnEveryDesktop) {
    for (const QAction* menu_action : bar->actions()) {
        for (const QAction* action : menu_action->menu()->actions()) {
            if (action->isSeparator()) continue;
            EXPECT_EQ(action->menuRole(), QAction::NoRole) << action->text().toStdString();
        }
    }
}

TEST_F(MainMenu, DisablesWhatNeedsAFrameWithoutOne) {
    const auto enabled = [&] {
        Lines labels;
        for (const QAction* menu_action : bar->actions()) {
            for (const QAction* action : menu_action->menu()->actions()) {
                if (!action->isSeparator() && action->isEnabled())
                    labels.push_back(action->text().remove('&').toStdString());
            }
        }
        return labels;
    };
    const Lines without_frames = {"New",
                                  "Open...",
                                  "Save",
                                  "About...",
                                  "Quit",
                                  "Paste",
                                  "Toggle Mode",
                                  "Preferences...",
                                  "Show Player",
                                  "Hide Frame Labels",
                                  "Colors...",
                                  "Insert...",
                                  "Insert Tiled...",
                                  "Insert Animation..."};

    EXPECT_EQ(enabled(), without_frames);
    EnableFrameItems(*bar, true);
    EXPECT_EQ(enabled().size(), 52u);
    EnableFrameItems(*bar, false);
    EXPECT_EQ(enabled(), without_frames);
}

}  // namespace

}  // namespace kirto::test
