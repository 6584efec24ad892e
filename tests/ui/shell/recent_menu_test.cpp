#include "ui/shell/recent_menu.h"

#include <QMenu>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/environment.h"
#include "support/test_support.h"
#include "ui/shell/main_menu.h"
#include "ui/shell/tool_bar.h"

namespace kirto::test {

namespace {

class RecentMenuTest : public ::testing::Test {
  protected:
    RecentMenuTest() {
        window_.setMenuBar(MakeMainMenu(&window_, [](uint32) {}));
        AddToolBar(window_);
        AddRecentMenu(window_, list_, BMessenger(application_));
    }

    QMenu& Menu() { return *window_.findChild<QMenu*>("OpenRecent"); }
    QStringList Items() {
        QStringList texts;
        for (const QAction* action : Menu().actions())
            texts.append(action->isSeparator() ? "-" : action->text());
        return texts;
    }
    void Remember(const std::string& path) {
        list_.Remember(path);
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return !list_.Files().empty() && list_.Files().front().path == path; }));
    }

    TemporaryFolder folder_;
    ScopedEnvironment configuration_{"XDG_CONFIG_HOME", folder_.Path().c_str()};
    ScopedEnvironment home_{"HOME", "/home/me"};
    std::shared_ptr<PortRecorder> application_ = std::make_shared<PortRecorder>();
    RecentList list_{folder_.Path()};
    QMainWindow window_;
};

TEST_F(RecentMenuTest, StandsBelowOpenAndAtTheToolBarsOpen) {
    const QMenu* file = window_.menuBar()->actions().front()->menu();
    EXPECT_EQ(file->actions().at(2), Menu().menuAction());
    const auto* tools = window_.findChild<QToolBar*>("Tools");
    const auto* open = static_cast<QToolButton*>(tools->widgetForAction(tools->actions().front()));
    EXPECT_EQ(open->menu(), &Menu());
}

TEST_F(RecentMenuTest, IsDisabledWhileItIsEmpty) {
    EXPECT_FALSE(Menu().menuAction()->isEnabled());
    Remember("/a.gif");
    EXPECT_TRUE(Menu().menuAction()->isEnabled());
}

TEST_F(RecentMenuTest, NamesFilesAndTheirFolders) {
    Remember("/home/me/pictures/one & two.gif");
    Remember("/elsewhere/b.gif");

    EXPECT_EQ(Items(), (QStringList{"&1  b.gif  (/elsewhere)", "&2  one && two.gif  (~/pictures)",
                                    "-", "&Clear List"}));
}

TEST_F(RecentMenuTest, OpensTheFileThatIsChosenOnceChangesMayGo) {
    Remember("/a.gif");
    Menu().actions().front()->trigger();

    const std::vector<BMessage> messages = application_->Messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages.front().what, kOpenFile);
    entry_ref ref;
    bool asks = false;
    EXPECT_EQ(messages.front().FindRef("refs", &ref), B_OK);
    EXPECT_EQ(messages.front().FindBool("ask", &asks), B_OK);
    EXPECT_EQ(ref.path, "/a.gif");
    EXPECT_TRUE(asks);
}

TEST_F(RecentMenuTest, ClearsTheList) {
    Remember("/a.gif");
    Menu().actions().back()->trigger();

    EXPECT_TRUE(QTest::qWaitFor([this] { return list_.Files().empty(); }));
    EXPECT_FALSE(Menu().menuAction()->isEnabled());
}

}  // namespace

}  // namespace kirto::test
