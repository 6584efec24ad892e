#include "ui/shell/player_state.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <gtest/gtest.h>

#include "support/test_support.h"
#include "ui/player/player_view.h"

namespace kirto::test {

namespace {

class PlayerState : public testing::Test {
  protected:
    template <typename Control>
    static Control& Find(PlayerView& player, const char* name) {
        return *player.findChild<Control*>(name);
    }

    TemporaryFolder folder_;
    QSettings state_{QString::fromStdString(folder_.File("state.ini")), QSettings::IniFormat};
    ShownDocument shown_;
    PlayerView stored_{shown_, {}};
    PlayerView restored_{shown_, {}};
};

TEST_F(PlayerState, KeepsWhatTheUserChose) {
    Find<QComboBox>(stored_, "PlayerLoop").setCurrentIndex(2);
    Find<QDoubleSpinBox>(stored_, "PlayerSpeed").setValue(0.5);
    Find<QCheckBox>(stored_, "LikeABrowser").setChecked(true);
    Find<QComboBox>(stored_, "OnionSkin").setCurrentIndex(1);
    Find<QSlider>(stored_, "OnionOpacity").setValue(70);
    stored_.Pane().SetZoom(4);

    StorePlayerChoices(state_, stored_);
    RestorePlayerChoices(state_, restored_);

    EXPECT_EQ(Find<QComboBox>(restored_, "PlayerLoop").currentIndex(), 2);
    EXPECT_EQ(restored_.Playback().LoopMode(), Player::Loop::kOnce);
    EXPECT_EQ(restored_.Playback().Speed(), 0.5);
    EXPECT_TRUE(restored_.Playback().IsLikeABrowser());
    EXPECT_EQ(Find<QComboBox>(restored_, "OnionSkin").currentIndex(), 1);
    EXPECT_TRUE(Find<QSlider>(restored_, "OnionOpacity").isEnabled());
    EXPECT_EQ(Find<QSlider>(restored_, "OnionOpacity").value(), 70);
    EXPECT_FALSE(restored_.Pane().IsFitted());
    EXPECT_EQ(restored_.Pane().Zoom(), 4);
}

TEST_F(PlayerState, KeepsAFittedPictureFitted) {
    StorePlayerChoices(state_, stored_);
    RestorePlayerChoices(state_, restored_);

    EXPECT_TRUE(restored_.Pane().IsFitted());
}

TEST_F(PlayerState, LeavesThePlayerAsItIsWhereNothingOrNonsenseWasStored) {
    RestorePlayerChoices(state_, restored_);
    EXPECT_EQ(restored_.Playback().LoopMode(), Player::Loop::kAsSaved);
    EXPECT_EQ(restored_.Playback().Speed(), 1);

    state_.setValue("player/PlayerLoop", 17);
    state_.setValue("player/OnionSkin", "both");
    state_.setValue("player/PlayerSpeed", "nan");
    state_.setValue("player/zoom", "inf");
    RestorePlayerChoices(state_, restored_);

    EXPECT_EQ(restored_.Playback().LoopMode(), Player::Loop::kAsSaved);
    EXPECT_EQ(Find<QComboBox>(restored_, "OnionSkin").currentIndex(), 0);
    EXPECT_EQ(restored_.Playback().Speed(), 1);
    EXPECT_TRUE(restored_.Pane().IsFitted());
}

}  // namespace

}  // namespace kirto::test
