#include "app/saved_size.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "app/save_animation.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr int32 kWidth = 96;
constexpr int32 kHeight = 64;
constexpr int32 kFrames = 61;

// The color of a pixel of a frame.
using Painter = std::function<uint32(int32 frame, int32 x, int32 y)>;

uint32 Grey(int32 value) {
    const auto level = static_cast<uint32>(value & 0xFF);
    return 0xFF000000 | (level << 16) | (level << 8) | level;
}

uint32 MovingBall(int32 frame, int32 x, int32 y) {
    const int32 left = x - (10 + frame);
    const int32 top = y - 32;
    return left * left + top * top < 150 ? kRed : Grey((2 * x + y) & 0xF8);
}

// Repeatable, and the same for a pixel of a frame whenever it is asked for.
uint32 Noise(int32 frame, int32 x, int32 y) {
    std::minstd_rand random(static_cast<uint32>((frame * kHeight + y) * kWidth + x + 1));
    random.discard(3);
    return Grey(static_cast<int32>(random() >> 8));
}

// More and more of it moves.
uint32 GrowingNoise(int32 frame, int32 x, int32 y) {
    return x < 16 + frame ? Noise(frame, x, y) : Grey(y);
}

class SavedSizeTest : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        fixture_.prefs.animation_faithful = GetParam();
        fixture_.document.PublishSettings();
    }
    void Draw(const Painter& paint, int32 frames = kFrames) {
        for (int32 frame = 0; frame < frames; ++frame) {
            std::vector<uint32> pixels;
            for (int32 y = 0; y < kHeight; ++y) {
                for (int32 x = 0; x < kWidth; ++x)
                    pixels.push_back(paint(frame, x, y));
            }
            AppendFrame(Document(), PictureOf(kWidth, kHeight, pixels), "frame");
        }
        EditOf(Document())->width = kWidth;
        EditOf(Document())->height = kHeight;
    }
    AnimationDocument& Document() { return fixture_.document; }
    std::shared_ptr<const DocumentState> State() { return Document().CurrentState(); }
    int64 Saved() {
        Document().UpdateGlobalPalette();
        const std::string path = folder_.File("saved.gif");
        EXPECT_EQ(SaveAnimatedGif(Document(), path), SaveResult::kSaved);
        return static_cast<int64>(std::filesystem::file_size(path));
    }

    DocumentFixture fixture_;
    TemporaryFolder folder_;
};

bool AfterFive(int32 runs) {
    return runs >= 5;
}

INSTANTIATE_TEST_SUITE_P(BothWays, SavedSizeTest, testing::Bool(),
                         [](const auto& each) { return each.param ? "Faithful" : "Defined"; });

TEST_P(SavedSizeTest, IsExactlyThatOfTheFile) {
    for (const Painter& paint : {Painter(MovingBall), Painter(Noise)}) {
        Document().Reset();
        Draw(paint, 9);
        const auto exact = SavedSize(*State()).Exact();
        EXPECT_EQ(exact, Saved());
    }
}

TEST_P(SavedSizeTest, IsEstimatedFromAFewFramesWithinAFewPercent) {
    for (const Painter& paint : {Painter(MovingBall), Painter(Noise), Painter(GrowingNoise)}) {
        Document().Reset();
        Draw(paint);
        const auto about = SavedSize(*State()).Estimate(AfterFive);
        ASSERT_TRUE(about);
        const auto saved = static_cast<double>(Saved());
        EXPECT_NEAR(static_cast<double>(*about), saved, saved * 0.05);
    }
}

TEST_P(SavedSizeTest, LooksAtAllFramesUnlessAFewAreEnough) {
    Draw(GrowingNoise);
    int32 asked = 0;

    const auto about = SavedSize(*State()).Estimate([&](int32 runs) {
        asked = runs;
        return false;
    });

    EXPECT_EQ(asked, 20);
    ASSERT_TRUE(about);
    const auto saved = static_cast<double>(Saved());
    EXPECT_NEAR(static_cast<double>(*about), saved, GetParam() ? saved * 0.02 : 0);
}

TEST_P(SavedSizeTest, OfOneFrameNeedsNoSample) {
    Draw(MovingBall, 1);

    const auto about = SavedSize(*State()).Estimate(AfterFive);

    EXPECT_EQ(about, Saved());
}

TEST_P(SavedSizeTest, FollowsTheFrameThatThePaletteFollows) {
    Draw([](int32 frame, int32 x, int32 y) { return frame == 1 ? kRed : Noise(frame, x, y); }, 3);
    PaletteEditOf(Document())->mode = kPaletteCurrentFrame;
    Document().Select(1);
    const auto state = State();
    Document().Select(0);

    EXPECT_EQ(SavedSize::IsSame(*state, *State()), false);
    EXPECT_EQ(SavedSize(*State()).Exact(), Saved());
}

TEST_P(SavedSizeTest, IsNotKnownOfWhatCanNotBeSaved) {
    EXPECT_FALSE(SavedSize(*State()).Estimate(AfterFive));
    EXPECT_FALSE(SavedSize(*State()).Exact());
    Draw(MovingBall, 2);
    EditOf(Document())->width = 1;
    EXPECT_FALSE(SavedSize(*State()).Exact());
}

TEST_P(SavedSizeTest, IsNotKnownOnceItWasStopped) {
    Draw(Noise, 9);
    SavedSize size(*State());
    const auto about = size.Estimate([&](int32) {
        size.RequestStop();
        return false;
    });

    EXPECT_FALSE(about);
    EXPECT_FALSE(size.Exact());
}

TEST_P(SavedSizeTest, DependsOnFramesAndSettingsNotOnTheSelection) {
    Draw(MovingBall, 3);
    const auto before = State();
    Document().Select(2);
    EXPECT_TRUE(SavedSize::IsSame(*before, *State()));

    EditOf(Document())->loop_count = 7;
    EXPECT_FALSE(SavedSize::IsSame(*before, *State()));
    EditOf(Document())->loop_count = before->animation->loop_count;
    EXPECT_TRUE(SavedSize::IsSame(*before, *State()));
    Document().RemoveFrame();
    EXPECT_FALSE(SavedSize::IsSame(*before, *State()));
    const auto shorter = State();
    fixture_.prefs.animation_gifcomment = !fixture_.prefs.animation_gifcomment;
    Document().PublishSettings();
    EXPECT_FALSE(SavedSize::IsSame(*shorter, *State()));
}

}  // namespace

}  // namespace kirto::test
