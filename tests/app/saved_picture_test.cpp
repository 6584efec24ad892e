#include "app/saved_picture.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

// A canvas of 3 x 2 with frames in it, as the settings say.
class SavedPictureTest : public ::testing::Test {
  protected:
    SavedPictureTest() { prefs.global_setdimensions = false; }

    DocumentState StateOf(const std::vector<uint32>& pixels, int32 left = 0) {
        Animation animation;
        animation.width = 3;
        animation.height = 2;
        Frame frame("frame", static_cast<int32>(pixels.size()), 1);
        frame.bitmap = FramePictureOf(frame.width, 1, pixels);
        frame.x_offset = left;
        EditPalette(animation, [this](Palette& palette) { palette = colors; });
        InsertFrame(animation, 0, std::make_shared<const Frame>(frame));
        DocumentState state;
        state.animation = std::make_shared<const Animation>(animation);
        state.settings = std::make_shared<const Prefs>(prefs);
        return state;
    }
    static std::vector<uint32> FirstRow(const Picture& picture) {
        std::vector<uint32> row = PixelsOf(picture);
        row.resize(static_cast<size_t>(picture.Width()));
        return row;
    }

    Prefs prefs{Prefs::BuiltIn{}};
    Palette colors{kPaletteWebSafe};
};

}  // namespace

TEST_F(SavedPictureTest, HasTheColorsOfThePaletteThatIsSaved) {
    const auto picture = SavedPicture(StateOf({0xFFFF0000, 0xFFFA0502, 0xFF330099}), 0);

    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->Width(), 3);
    EXPECT_EQ(picture->Height(), 2);
    EXPECT_EQ(FirstRow(*picture), (std::vector<uint32>{0xFFFF0000, 0xFFFF0000, 0xFF330099}));
}

TEST_F(SavedPictureTest, HasTheFrameWhereItStandsOnTheCanvas) {
    const auto picture = SavedPicture(StateOf({0xFF00FF00}, 2), 0);

    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(FirstRow(*picture), (std::vector<uint32>{0, 0, 0xFF00FF00}));
}

TEST_F(SavedPictureTest, KeepsAllColorsWhereTheSaveDoes) {
    prefs.animation_faithful = true;
    const std::vector<uint32> pixels = {0xFFFA0502, 0xFF010203, 0xFF102030};

    const auto picture = SavedPicture(StateOf(pixels), 0);

    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(FirstRow(*picture), pixels);
}

TEST_F(SavedPictureTest, FindsTheColorsOfAPaletteThatFollowsAFrame) {
    colors.Set(kPaletteFirstFrame);
    const std::vector<uint32> pixels = {0xFFFA0502, 0xFF010203, 0xFF102030};

    const auto picture = SavedPicture(StateOf(pixels), 0);

    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(FirstRow(*picture), pixels);
}

TEST_F(SavedPictureTest, IsNoneOfWhatCanNotBeSaved) {
    EXPECT_EQ(SavedPicture(StateOf({0xFFFF0000}), 1), nullptr);
    EXPECT_EQ(SavedPicture(StateOf(std::vector<uint32>(9, 0xFFFF0000)), 0), nullptr);
}

}  // namespace kirto::test
