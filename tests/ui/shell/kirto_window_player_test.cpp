// The player in the main window.
#include <QMenuBar>

#include "ui/player/player_view.h"
#include "ui/shell/kirto_window_fixture.h"
#include "ui/thumbnails/thumb_drawing_view.h"

namespace kirto::test {

namespace {

class KirtoWindowPlayer : public KirtoWindowFixture {
  protected:
    KirtoWindowPlayer() {
        for (int i = 0; i < 3; ++i)
            AddFrame();
    }
    PlayerView& View() { return Find<PlayerView>("PlayerView"); }
};

TEST_F(KirtoWindowPlayer, IsFoldedAwayUntilItIsAskedFor) {
    Open();
    EXPECT_FALSE(View().isVisible());

    Do(kShowPlayer);
    EXPECT_TRUE(View().isVisible());
    EXPECT_EQ(window->menuBar()->findChild<QAction*>("Player")->text(), "Hide Pla&yer");

    Do(kShowPlayer);
    EXPECT_FALSE(View().isVisible());
}

TEST_F(KirtoWindowPlayer, MakesTheWindowLargeEnoughForWhatItNeeds) {
    Open(BRect(100, 80, 649, 479));

    Do(kShowPlayer);

    EXPECT_GE(View().width(), View().minimumSizeHint().width());
    EXPECT_GE(View().height(), View().minimumSizeHint().height());
    const QSize with_player = window->minimumSize();
    Do(kShowPlayer);
    EXPECT_LT(window->minimumHeight(), with_player.height());
}

TEST_F(KirtoWindowPlayer, PlaysBySpaceFromTheFramesAndUnfolds) {
    Open();
    auto& grid = Find<ThumbDrawingView>("ThumbDrawingView");
    grid.setFocus();

    QTest::keyClick(&grid, Qt::Key_Space);

    EXPECT_TRUE(View().isVisible());
    EXPECT_TRUE(View().Playback().IsPlaying());
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_FALSE(View().Playback().IsPlaying());
}

TEST_F(KirtoWindowPlayer, LeavesSpaceToControlsThatUseIt) {
    Open();
    auto& field = Find<TextControl>("Width");
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Space);
    auto& box = Find<QCheckBox>("Dither");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Space);

    EXPECT_TRUE(box.isChecked());
    EXPECT_FALSE(View().Playback().IsPlaying());
}

TEST_F(KirtoWindowPlayer, IsRememberedWithThePlaceOfTheWindow) {
    prefs.misc_savewindowdimensions = true;
    Open();
    Do(kShowPlayer);
    Do(B_QUIT_REQUESTED);

    Open();

    EXPECT_TRUE(View().isVisible());
}

TEST_F(KirtoWindowPlayer, FollowsTheCurrentFrame) {
    Open();
    Do(kShowPlayer);
    document.Select(2);
    Do(kUpdateFrames);
    EXPECT_EQ(View().Playback().Frame(), 2);
    Do(kPlay);
    EXPECT_TRUE(View().Playback().IsPlaying());
}

}  // namespace

}  // namespace kirto::test
