#include "ui/player/pixel_text.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

QString TextAt(int x, color_space space = B_RGB32) {
    Animation animation;
    EditPalette(animation, [](Palette& palette) {
        palette.size = 2;
        palette.colors[1] = {0xFF, 0x80, 0x00, 0xFF};
    });
    Frame frame("frame", 4, 1);
    frame.x_offset = 10;
    frame.bitmap = FramePictureOf(4, 1, {0xFFFF8000, 0xFF010203, 0x80FF8000, 0x00FF8000}, space);
    return PixelText(animation, frame, {x, 0});
}

}  // namespace

TEST(PixelText, TellsColorAndIndexWhereThePaletteHasIt) {
    EXPECT_EQ(TextAt(10), "#FF8000, index 1");
    EXPECT_EQ(TextAt(11), "#010203");
    EXPECT_EQ(TextAt(10, B_RGB32_BIG), "#FF8000, index 1");
}

TEST(PixelText, TellsHowTransparentAPixelIs) {
    EXPECT_EQ(TextAt(12), "#FF8000, alpha 128");
    EXPECT_EQ(TextAt(13), "transparent");
}

TEST(PixelText, KnowsNothingBesideTheFrame) {
    EXPECT_EQ(TextAt(9), "no frame");
    EXPECT_EQ(TextAt(14), "no frame");
    EXPECT_EQ(PixelText({}, Frame("none", 4, 4), {0, 0}), "no frame");
}

}  // namespace kirto::test
