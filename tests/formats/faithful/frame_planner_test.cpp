#include "formats/faithful/frame_planner.h"

#include <gtest/gtest.h>
#include <optional>

#include "support/test_support.h"

namespace kirto::test {

namespace {

// Plans screens of one row, in which a space is nothing and each letter a color.
class Planner : public testing::Test {
  protected:
    explicit Planner(int32 width = 8)
        : screen_(width, 1, AlphaMatte()),
          reducer_(screen_, {.dither = AdaptiveDither::kNone}, work_) {}

    void Add(const std::string& row, int32 delay = 10) {
        FrameToPlan frame;
        frame.delay = delay;
        ScreenPixels pixels;
        for (const char pixel : row)
            pixels.push_back(pixel == ' ' ? kNothing : static_cast<uint32>(pixel));
        frame.image = {screen_.PictureOf(pixels), 0, 0, screen_.Width(), 1};
        frame.shown = std::make_shared<const ScreenPixels>(std::move(pixels));
        planner_->Add(frame);
    }
    void DrawWhole() { planner_.emplace(screen_, reducer_, FrameAreas::kWhole); }
    const FramePlan& Plan(size_t i) const { return planner_->Plans()[i]; }
    PixelRect Columns(int32 first, int32 end) const { return {first, 0, end - first, 1}; }

    Work work_;
    const Screen screen_;
    const ColorReducer reducer_;
    std::optional<FramePlanner> planner_{std::in_place, screen_, reducer_};
};

}  // namespace

TEST_F(Planner, DrawsOnlyWhatIsNew) {
    Add("aabbccdd");
    Add("aabxcydd");
    EXPECT_EQ(Plan(0).disposal, Disposal::kKeep);
    EXPECT_EQ(Plan(1).rect, Columns(3, 6));
    EXPECT_TRUE(Plan(1).skips);
    ASSERT_EQ(Plan(1).colors.size(), 2u);
    EXPECT_EQ(Plan(1).below, (Backdrop{0, {}}));
}

TEST_F(Planner, DrawsAllOfEachFrameWhereImagesAreToBeWhole) {
    DrawWhole();
    Add("aabbccdd");
    Add("aabxcydd");
    Add("aab  ydd");
    Add("        ");
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(Plan(i).rect, Columns(0, 8)) << i;
        EXPECT_EQ(Plan(i).below, Backdrop()) << i;
    }
    EXPECT_EQ(Plan(0).disposal, Disposal::kKeep);
    EXPECT_FALSE(Plan(1).skips);
    EXPECT_EQ(Plan(1).colors.size(), 6u);
    EXPECT_EQ(Plan(1).disposal, Disposal::kBackground);
    EXPECT_TRUE(Plan(2).skips);
    EXPECT_EQ(Plan(2).colors.size(), 4u);
    EXPECT_EQ(Plan(3).colors.size(), 0u);
}

TEST_F(Planner, FirstDrawsOnAnEmptyScreen) {
    Add("   ab   ");
    EXPECT_EQ(Plan(0).rect, Columns(3, 5));
    EXPECT_FALSE(Plan(0).skips);
    EXPECT_EQ(Plan(0).below.plan, -1);
}

TEST_F(Planner, ClearsWhatIsToDisappear) {
    Add("abcdefgh");
    Add("ab    gh");
    EXPECT_EQ(Plan(0).disposal, Disposal::kBackground);
    EXPECT_EQ(Plan(1).rect, Columns(0, 8));
}

TEST_F(Planner, MakesAnImageLargerWhereItHasToClearMore) {
    Add("abcdefgh");
    Add("abcdxfgh");
    Add("a   xfgh");
    EXPECT_EQ(Plan(1).disposal, Disposal::kBackground);
    EXPECT_EQ(Plan(1).rect, Columns(1, 5));
    EXPECT_TRUE(Plan(1).skips);
    EXPECT_EQ(Plan(2).rect, Columns(4, 5));
}

TEST_F(Planner, PutsBackWhatAPassingImageHid) {
    Add("abcdefgh");
    Add("XYZdefgh");
    Add("abcdeUVW");
    EXPECT_EQ(Plan(1).disposal, Disposal::kPrevious);
    EXPECT_EQ(Plan(2).rect, Columns(5, 8));
    EXPECT_EQ(Plan(2).below, (Backdrop{0, {}}));
}

TEST_F(Planner, LengthensAFrameByOnesThatLookAlike) {
    Add("abcdefgh", 10);
    Add("abcdefgh", 20);
    Add("abcdefgh", 1);
    ASSERT_EQ(planner_->Plans().size(), 2u);
    EXPECT_EQ(Plan(0).delay, 30);
    // Browsers do not keep to so short a pause.
    EXPECT_EQ(Plan(1).delay, 1);
    EXPECT_EQ(Plan(1).rect, Columns(0, 1));
    EXPECT_TRUE(Plan(1).colors.empty());
}

TEST_F(Planner, DoesNotLengthenAFrameBeyondTheLongestPause) {
    Add("abcdefgh", 65530);
    Add("abcdefgh", 6);
    EXPECT_EQ(planner_->Plans().size(), 2u);
}

TEST_F(Planner, TellsOfPausesThatBrowsersLengthen) {
    Add("abcdefgh", 1);
    Add("hgfedcba", 2);
    EXPECT_EQ(planner_->HowNear().short_pauses, 1);
    EXPECT_EQ(planner_->HowNear().changed, 0);
    EXPECT_EQ(planner_->HowNear().pixels, 16);
}

namespace {

class ColorfulPlanner : public Planner {
  protected:
    ColorfulPlanner() : Planner(1000) {}

    void AddPixels(const ScreenPixels& pixels) {
        FrameToPlan frame;
        frame.delay = 10;
        frame.image = {screen_.PictureOf(pixels), 0, 0, screen_.Width(), 1};
        frame.shown = std::make_shared<const ScreenPixels>(pixels);
        planner_->Add(frame);
    }
    ScreenPixels ShownBy(size_t i) const { return screen_.Show(Plan(i).shown); }
    // So many colors from that column on.
    static void Paint(size_t first, uint32 count, uint32 color, ScreenPixels* pixels) {
        for (uint32 i = 0; i < count; ++i)
            (*pixels)[first + i] = color + i * 3;
    }
};

}  // namespace

TEST_F(ColorfulPlanner, ColorsThatStandStillDoNotCount) {
    ScreenPixels pixels(1000, 7);
    for (size_t i = 0; i < 4; ++i) {
        Paint(i * 250, 250, static_cast<uint32>(i) * 10000, &pixels);
        AddPixels(pixels);
    }
    for (size_t i = 0; i < 4; ++i)
        EXPECT_LE(Plan(i).colors.size(), 251u);
    EXPECT_EQ(ShownBy(3), pixels);
    EXPECT_EQ(planner_->HowNear().changed, 0);
}

TEST_F(ColorfulPlanner, AFrameOfTooManyColorsIsReducedAndWhatStandsStillStaysSo) {
    ScreenPixels pixels(1000, 7);
    Paint(0, 600, 1000, &pixels);
    AddPixels(pixels);
    EXPECT_LE(Plan(0).colors.size(), 255u);
    EXPECT_GT(planner_->HowNear().changed, 300);
    const ScreenPixels first = ShownBy(0);
    EXPECT_NE(first, pixels);

    Paint(600, 300, 90000, &pixels);
    AddPixels(pixels);
    const ScreenPixels second = ShownBy(1);
    EXPECT_TRUE(std::equal(first.begin(), first.begin() + 600, second.begin()));
    EXPECT_EQ(Plan(1).rect, Columns(600, 900));
}

TEST_F(ColorfulPlanner, AFullTableThatHasToClearMoreLosesAColor) {
    ScreenPixels pixels(1000, 7);
    AddPixels(pixels);
    Paint(0, 256, 1000, &pixels);
    AddPixels(pixels);
    EXPECT_EQ(Plan(1).colors.size(), 256u);
    EXPECT_FALSE(Plan(1).skips);
    pixels[500] = kNothing;
    AddPixels(pixels);
    EXPECT_LT(Plan(1).colors.size(), 256u);
    EXPECT_TRUE(Plan(1).skips);
    EXPECT_EQ(Plan(1).disposal, Disposal::kBackground);
    EXPECT_EQ(ShownBy(2)[500], kNothing);
}

TEST_F(ColorfulPlanner, AFrameThatIsNotReducedToTheEndHasNoColors) {
    ScreenPixels pixels(1000, 7);
    AddPixels(pixels);
    Paint(0, 256, 1000, &pixels);
    AddPixels(pixels);
    work_.StopAll();
    // Now the frame before would have to be reduced, and then a new one.
    pixels[500] = kNothing;
    AddPixels(pixels);
    Paint(0, 600, 90000, &pixels);
    AddPixels(pixels);
    EXPECT_TRUE(planner_->Plans().back().colors.empty());
}

}  // namespace kirto::test
