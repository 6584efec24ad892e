#include "ui/player/player.h"

#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

using std::chrono::milliseconds;

// Five frames of 40 ms, of which the first is current, and a clock that the test moves.
class PlayerTest : public ::testing::Test {
  protected:
    PlayerTest() {
        player.SetNow([this] { return now; });
        fixture.document.Change([](Animation& animation) {
            animation.use_pause = true;
            animation.pause_length = 4;
            animation.use_loop = false;
        });
        Show(SameFrames(5, 2, 2), 0);
    }

    void Show(const std::vector<FramePointer>& frames, int32 selected) {
        ShowFrames(shown, fixture.document, frames, selected);
        player.UpdateDisplay();
    }
    void Change(const std::function<void(Animation&)>& edit) {
        fixture.document.Change(edit);
        shown.Take(fixture.document);
        player.UpdateDisplay();
    }
    void Pass(milliseconds time) {
        now += time;
        player.Tick();
    }
    std::string Posted() { return port->TakeTranscript(); }

    DocumentFixture fixture;
    ShownDocument shown;
    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    PlaybackClock::Instant now{0};
    int changes = 0;
    Player player{shown, BMessenger(port), [this] { ++changes; }};
};

TEST_F(PlayerTest, ShowsTheCurrentFrameWhileItDoesNotPlay) {
    EXPECT_EQ(player.Frame(), 0);
    Change([](Animation& animation) { animation.selected = 3; });
    EXPECT_EQ(player.Frame(), 3);
    EXPECT_EQ(player.Time(), milliseconds(120));
    EXPECT_EQ(player.Length(), milliseconds(200));
    EXPECT_FALSE(player.IsPlaying());
}

TEST_F(PlayerTest, PlaysFromTheCurrentFrameAndSkipsWhatIsLate) {
    Change([](Animation& animation) { animation.selected = 2; });

    player.Play();
    EXPECT_EQ(player.Frame(), 2);
    Pass(milliseconds(39));
    EXPECT_EQ(player.Frame(), 2);
    Pass(milliseconds(1));
    EXPECT_EQ(player.Frame(), 3);
    Pass(milliseconds(75));
    EXPECT_EQ(player.Frame(), 4);
}

TEST_F(PlayerTest, MakesTheFrameCurrentWhereItIsPaused) {
    player.Play();
    Pass(milliseconds(90));
    EXPECT_EQ(Posted(), "") << "Nothing is edited or selected while it plays.";

    player.Pause();

    EXPECT_EQ(player.Frame(), 2);
    EXPECT_EQ(Posted(), "aslt");
    Pass(milliseconds(90));
    EXPECT_EQ(player.Frame(), 2);
}

TEST_F(PlayerTest, PlaysOnceWithoutALoopAndThenFromTheStartAgain) {
    player.Play();
    Pass(milliseconds(200));

    EXPECT_FALSE(player.IsPlaying());
    EXPECT_EQ(player.Frame(), 4);
    player.Play();
    EXPECT_EQ(player.Frame(), 0);
}

TEST_F(PlayerTest, LoopsAsTheFileSaysAlwaysOrOnce) {
    const auto plays_after = [this](milliseconds time) {
        player.ToStart();
        player.Play();
        Pass(time);
        return player.IsPlaying();
    };
    Change([](Animation& animation) {
        animation.use_loop = true;
        animation.loop_count = 2;
    });
    EXPECT_TRUE(plays_after(milliseconds(599))) << "once, and two repetitions";
    EXPECT_FALSE(plays_after(milliseconds(600)));
    player.SetLoop(Player::Loop::kAlways);
    EXPECT_TRUE(plays_after(milliseconds(60000)));
    player.SetLoop(Player::Loop::kOnce);
    EXPECT_FALSE(plays_after(milliseconds(200)));
    player.SetLoop(Player::Loop::kAsSaved);
    Change([](Animation& animation) { animation.loop_count = 0; });
    EXPECT_TRUE(plays_after(milliseconds(60000)));
}

TEST_F(PlayerTest, PlaysTheSelectionAndKeepsIt) {
    Change([](Animation& animation) { SelectFrames(animation, FrameSet::Of(1, 2), 1); });
    player.SetLoop(Player::Loop::kAlways);
    player.SetPlaysSelection(true);

    player.Play();
    EXPECT_EQ(player.Frame(), 1);
    Pass(milliseconds(40));
    EXPECT_EQ(player.Frame(), 2);
    Pass(milliseconds(40));
    EXPECT_EQ(player.Frame(), 1);
    Pass(milliseconds(40));
    player.Pause();

    const BMessage select = port->Messages().back();
    std::string frames;
    EXPECT_EQ(select.what, kSelectFrames);
    EXPECT_EQ(select.FindString("frames", &frames), B_OK);
    EXPECT_EQ(frames, "1-2");
}

TEST_F(PlayerTest, PlaysFasterAndSlowerAtOnce) {
    player.Play();
    player.SetSpeed(2);
    Pass(milliseconds(20));
    EXPECT_EQ(player.Frame(), 1);
    player.SetSpeed(0.5);
    Pass(milliseconds(79));
    EXPECT_EQ(player.Frame(), 1);
    Pass(milliseconds(1));
    EXPECT_EQ(player.Frame(), 2);
}

TEST_F(PlayerTest, PlaysLikeABrowserWhenAskedTo) {
    Change([](Animation& animation) { animation.pause_length = 1; });
    EXPECT_EQ(player.Length(), milliseconds(50));
    player.SetLikeABrowser(true);
    EXPECT_EQ(player.Length(), milliseconds(500));
}

TEST_F(PlayerTest, StepsAndJumpsAndPauses) {
    player.Play();
    player.Step(1);
    EXPECT_FALSE(player.IsPlaying());
    EXPECT_EQ(player.Frame(), 1);
    player.Step(-9);
    EXPECT_EQ(player.Frame(), 0);
    player.ToEnd();
    EXPECT_EQ(player.Frame(), 4);
    player.Step(1);
    EXPECT_EQ(player.Frame(), 4);
    player.ToStart();
    EXPECT_EQ(player.Frame(), 0);
    EXPECT_EQ(Posted(), "aslt aslt aslt aslt aslt");
}

TEST_F(PlayerTest, MissesNoStepWhileTheApplicationIsBehind) {
    player.Step(1);
    player.Step(1);
    Change([](Animation& animation) { animation.selected = 1; });
    EXPECT_EQ(player.Frame(), 2) << "the answer to the first step";
    player.Step(1);
    Change([](Animation& animation) { animation.selected = 3; });
    EXPECT_EQ(player.Frame(), 3);
    Change([](Animation& animation) { animation.selected = 1; });
    EXPECT_EQ(player.Frame(), 1) << "somebody else's choice";
}

TEST_F(PlayerTest, GoesOnWithTheSameFrameWhenTheAnimationIsEdited) {
    player.Play();
    Pass(milliseconds(90));
    Change([](Animation& animation) { animation.frames.Remove(4); });
    EXPECT_TRUE(player.IsPlaying());
    EXPECT_EQ(player.Frame(), 2);
    Pass(milliseconds(30));
    EXPECT_EQ(player.Frame(), 3);
}

TEST_F(PlayerTest, GoesOnFromAFrameThatIsChosenMeanwhile) {
    player.Play();
    Pass(milliseconds(90));
    Change([](Animation& animation) { animation.selected = 4; });
    EXPECT_TRUE(player.IsPlaying());
    EXPECT_EQ(player.Frame(), 4);
}

TEST_F(PlayerTest, StopsWithoutFrames) {
    player.Play();
    Show({}, 0);
    EXPECT_FALSE(player.IsPlaying());
    EXPECT_EQ(player.Frame(), -1);
    player.Play();
    player.Step(1);
    player.ToEnd();
    EXPECT_FALSE(player.IsPlaying());
    EXPECT_EQ(Posted(), "");
}

TEST_F(PlayerTest, WaitsWhereItIsWhileNobodySeesIt) {
    player.Play();
    Pass(milliseconds(50));
    player.SetSeen(false);
    Pass(milliseconds(5000));
    EXPECT_EQ(player.Frame(), 1);
    EXPECT_TRUE(player.IsPlaying());
    const int before = changes;
    Pass(milliseconds(5000));
    EXPECT_EQ(changes, before);

    player.SetSeen(true);
    EXPECT_EQ(player.Frame(), 1);
    Pass(milliseconds(40));
    EXPECT_EQ(player.Frame(), 2);
}

TEST_F(PlayerTest, KnowsWhichFramesComeNext) {
    Change([](Animation& animation) { animation.selected = 3; });
    EXPECT_EQ(player.Upcoming(4), (std::vector<int32>{3, 4, 0, 1}));
    EXPECT_EQ(player.Upcoming(99), (std::vector<int32>{3, 4, 0, 1, 2}));
    Show({}, 0);
    EXPECT_TRUE(player.Upcoming(4).empty());
}

}  // namespace

}  // namespace kirto::test
