#include "ui/dialogs/preferences_window.h"
#include "ui/panels/notice_bar.h"
#include "ui/shell/kirto_window_fixture.h"
#include "ui/thumbnails/difference_window.h"

namespace kirto::test {

namespace {

// What the main window says quietly.
class KirtoWindowNotice : public KirtoWindowFixture {
  protected:
    void ShowNotice() {
        BMessage notice(kShowNotice);
        notice.AddString("text", "1 of 2 frames will show trails.");
        for (const auto& [label, command] :
             {std::pair{"Save Faithfully", kSaveFaithfully}, std::pair{"Show", kShowDifferences},
              std::pair{"Close", kCloseNotice}}) {
            notice.AddString("button", label);
            notice.AddInt32("command", static_cast<int32>(command));
        }
        Do(notice);
    }
    NoticeBar& Bar() { return Find<NoticeBar>("NoticeBar"); }
    void Click(size_t button) {
        Bar().buttons[button]->click();
        HandleEvents();
    }
};

}  // namespace

TEST_F(KirtoWindowNotice, StandsBelowTheFramesAndTakesNoFocus) {
    Open();
    QWidget* const focus = window->focusWidget();
    EXPECT_FALSE(Bar().isVisible());

    ShowNotice();

    EXPECT_TRUE(Bar().isVisible());
    EXPECT_EQ(window->focusWidget(), focus);
    EXPECT_LT(Bar().geometry().bottom(), Find<QWidget>("StatusView").geometry().bottom());
}

TEST_F(KirtoWindowNotice, GoesWhenTheApplicationSaysSo) {
    Open();
    ShowNotice();

    Do(kHideNotice);

    EXPECT_FALSE(Bar().isVisible());
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowNotice, ClosesAtOnceAndTellsTheApplication) {
    Open();
    ShowNotice();

    Click(2);

    EXPECT_FALSE(Bar().isVisible());
    EXPECT_EQ(Posted(), "wntc");
}

TEST_F(KirtoWindowNotice, PassesOnWhatTheApplicationIsToDo) {
    Open();
    ShowNotice();

    Click(0);
    Do(kUndoOpening);

    EXPECT_EQ(Posted(), "asvf auop");
    EXPECT_TRUE(Bar().isVisible());
}

TEST_F(KirtoWindowNotice, ShowsNothingWhereNothingWasFound) {
    Open();
    ShowNotice();

    Click(1);

    EXPECT_EQ(window->findChild<DifferenceWindow*>(), nullptr);
    EXPECT_EQ(Posted(), "");
}

TEST_F(KirtoWindowNotice, ShowsWhatDiffers) {
    AddFrame();
    auto finding = std::make_shared<SaveCheck::Finding>();
    finding->saved = document.Current();
    finding->read = document.Current();
    finding->differences.pairs = {{0, 0}};
    found = finding;
    Open();
    ShowNotice();

    Click(1);

    ASSERT_NE(window->findChild<DifferenceWindow*>(), nullptr);
    EXPECT_TRUE(window->findChild<DifferenceWindow*>()->isVisible());
    EXPECT_FALSE(window->findChild<DifferenceWindow*>()->isModal());
    EXPECT_TRUE(Bar().isVisible());
}

TEST_F(KirtoWindowNotice, OpenPreferencesLearnOfTheSwitchAndKeepWhatTheUserChoseOtherwise) {
    Open();
    window->ShowPreferences("Compatibility");
    auto* box =
        window->findChild<PreferencesWindow*>()->findChild<QCheckBox*>("animation_faithful");
    ASSERT_NE(box, nullptr);
    prefs.animation_faithful = true;
    document.PublishSettings();

    Do(kUpdateAll);
    EXPECT_TRUE(box->isChecked());

    box->setChecked(false);
    Do(kUpdateAll);
    EXPECT_FALSE(box->isChecked());
}

}  // namespace kirto::test
