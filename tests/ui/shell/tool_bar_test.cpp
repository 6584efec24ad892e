#include "ui/shell/tool_bar.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPalette>
#include <QToolButton>
#include <gtest/gtest.h>
#include <set>

#include "document/command_codes.h"
#include "support/environment.h"
#include "support/test_support.h"
#include "ui/shell/main_menu.h"
#include "ui/shell/tool_icon.h"

namespace kirto::test {

namespace {

class ToolBarTest : public ::testing::Test {
  protected:
    struct Window : QMainWindow {
        std::string chosen;
        QToolBar* tools;

        Window() {
            setMenuBar(MakeMainMenu(this, [this](uint32 code) { chosen += CodeText(code); }));
            tools = AddToolBar(*this);
            EnableFrameItems(*menuBar(), true);
            show();
        }
        QToolButton* Button(int index) const {
            return static_cast<QToolButton*>(tools->widgetForAction(tools->actions().at(index)));
        }
    };
    static constexpr int kUndoPlace = 2;

    TemporaryFolder folder;
    ScopedEnvironment configuration{"XDG_CONFIG_HOME", folder.Path().c_str()};
};

TEST_F(ToolBarTest, ChoosesTheItemsOfTheMenus) {
    Window window;
    ShowHistory(*window.menuBar(), "Crop", "Crop");
    QStringList labels;
    for (int i = 0; i < window.tools->actions().size(); ++i) {
        labels.append(window.Button(i)->text());
        window.Button(i)->click();
    }

    EXPECT_EQ(labels, (QStringList{"Open", "Insert", "Undo", "Redo", "Play", "Save As", "Export",
                                   "Preview"}));
    EXPECT_EQ(window.chosen, "awfoawfi" + CodeText(kUndo) + CodeText(kRedo) + CodeText(kPlay) +
                                 "awfa" + CodeText(kMenuExport) + "awvp");
}

TEST_F(ToolBarTest, KeepsShortLabelsAndIsDisabledWithTheMenu) {
    Window window;
    ShowHistory(*window.menuBar(), "Crop", "");

    EXPECT_EQ(window.Button(kUndoPlace)->text(), "Undo");
    EXPECT_TRUE(window.Button(kUndoPlace)->isEnabled());
    EXPECT_FALSE(window.Button(kUndoPlace + 1)->isEnabled());
}

TEST_F(ToolBarTest, TellsTheKeyAsItIsNow) {
    const Window window;
    EXPECT_EQ(window.Button(0)->toolTip(), "Open an animation (Ctrl+O)");

    window.tools->actions().front()->setShortcut(QKeySequence("Ctrl+J"));
    EXPECT_EQ(window.Button(0)->toolTip(), "Open an animation (Ctrl+J)");
    window.tools->actions().front()->setShortcut({});
    EXPECT_EQ(window.Button(0)->toolTip(), "Open an animation");
}

TEST_F(ToolBarTest, StaysHiddenOnceItWasHidden) {
    {
        Window window;
        EXPECT_FALSE(window.tools->isHidden());
        window.menuBar()->actions().at(2)->menu()->actions().back()->trigger();
        EXPECT_TRUE(window.tools->isHidden());
    }
    const Window next;
    EXPECT_TRUE(next.tools->isHidden());
    next.tools->toggleViewAction()->trigger();
    EXPECT_FALSE(Window().tools->isHidden());
}

TEST_F(ToolBarTest, HasASymbolOfItsOwnInTheDesktopsColorsForEachTool) {
    const QRgb color = QGuiApplication::palette().color(QPalette::ButtonText).rgb() & 0xFFFFFF;
    std::set<QByteArray> pictures;
    for (const ToolSymbol symbol :
         {ToolSymbol::kFolder, ToolSymbol::kFrameAndPlus, ToolSymbol::kTurnBack,
          ToolSymbol::kTurnForward, ToolSymbol::kTriangle, ToolSymbol::kArrowIntoTray,
          ToolSymbol::kWindow}) {
        const QImage image = MakeToolIcon(symbol).pixmap(48, 48).toImage();
        QByteArray inked;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                inked += qAlpha(pixel) == 255 ? '#' : ' ';
                if (qAlpha(pixel) != 255) continue;
                EXPECT_EQ(pixel & 0xFFFFFF, color);
            }
        }
        EXPECT_GT(inked.count('#'), 50);
        pictures.insert(inked);
    }
    EXPECT_EQ(pictures.size(), 7u);
}

}  // namespace

}  // namespace kirto::test
