#include "ui/panels/status_view.h"
#include "ui/shell/kirto_window_fixture.h"

namespace kirto::test {

namespace {

// Work that takes long, as the main window shows and stops it.
class KirtoWindowWork : public KirtoWindowFixture {
  protected:
    void OpenWorking() {
        Open();
        document.work.Begin();
        Tell(static_cast<int64>(document.work.Running()), 1, 4);
    }
    void Tell(int64 piece, int64 done, int64 total) {
        BMessage progress(kWorkProgress);
        progress.AddInt64("piece", piece);
        progress.AddInt64("done", done);
        progress.AddInt64("total", total);
        Do(progress);
    }
    StatusView& Line() { return Find<StatusView>("StatusView"); }
};

TEST_F(KirtoWindowWork, ShowsHowFarItIsUntilItIsOver) {
    OpenWorking();
    EXPECT_TRUE(Line().progress->isVisible());
    EXPECT_EQ(Line().progress->value() * 4, Line().progress->maximum());
    EXPECT_TRUE(Line().cancel->isVisible());

    Do(kWorkProgress);

    EXPECT_FALSE(Line().progress->isVisible());
    EXPECT_FALSE(Line().cancel->isVisible());
}

TEST_F(KirtoWindowWork, TheButtonStopsIt) {
    OpenWorking();

    Line().cancel->click();
    HandleEvents();

    EXPECT_TRUE(document.StopRequested());
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowWork, EscapeStopsItWhereverTheKeyboardIs) {
    OpenWorking();
    Find<TextControl>("Width").setFocus();

    QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
    HandleEvents();

    EXPECT_TRUE(document.StopRequested());
}

TEST_F(KirtoWindowWork, EscapeStopsNothingThatIsNotShown) {
    OpenWorking();
    Do(kWorkProgress);

    QTest::keyClick(window.get(), Qt::Key_Escape);
    HandleEvents();

    EXPECT_FALSE(document.StopRequested());
}

TEST_F(KirtoWindowWork, AButtonHitTooLateLeavesTheNextWorkAlone) {
    OpenWorking();
    document.work.End();
    document.work.Begin();

    Line().cancel->click();
    HandleEvents();

    EXPECT_FALSE(document.StopRequested());
}

}  // namespace

}  // namespace kirto::test
