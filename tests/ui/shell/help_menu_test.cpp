#include "ui/shell/help_menu.h"

#include <QMainWindow>
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

class HelpMenu : public ::testing::Test {
  protected:
    HelpMenu() {
        AddHelpMenu(*bar, [this](uint32 code) { chosen += CodeText(code); });
    }
    QMenu& Menu() const { return *bar->actions().back()->menu(); }
    QAction& Item(const QString& label) const {
        for (QAction* action : Menu().actions()) {
            if (action->text().remove('&') == label) return *action;
        }
        ADD_FAILURE() << "no " << label.toStdString();
        return *Menu().actions().front();
    }

    QMainWindow window;
    std::string chosen;
    QMenuBar* bar = window.menuBar();
};

TEST_F(HelpMenu, IsCalledHelp) {
    EXPECT_EQ(Menu().title(), "&Help");
}

TEST_F(HelpMenu, OpensTheGuideWithF1OnceTheMenuIsClosed) {
    EXPECT_EQ(Item("Guide").shortcut(), QKeySequence("F1"));

    Item("Guide").trigger();
    EXPECT_EQ(window.findChild<QWidget*>("GuideWindow"), nullptr);
    EXPECT_TRUE(WaitFor([this] { return window.findChild<QWidget*>("GuideWindow"); }));
}

TEST_F(HelpMenu, AsksTheWindowToTellAboutTheProgram) {
    Item("About...").trigger();

    EXPECT_EQ(chosen, "_ABR");
}

}  // namespace

}  // namespace kirto::test
