#include "color/color_text.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

using Colors = std::vector<rgb_color>;

constexpr rgb_color kOrange{255, 128, 0, 255};
constexpr rgb_color kNavy{0, 0, 127, 255};

}  // namespace

TEST(ColorText, ReadsSixDigitsOfEitherCase) {
    rgb_color color{};
    EXPECT_TRUE(ParseColor("#ff8000", &color));
    EXPECT_EQ(color, kOrange);
    EXPECT_TRUE(ParseColor("#00007F", &color));
    EXPECT_EQ(color, kNavy);
}

TEST(ColorText, AnythingElseIsNoColor) {
    rgb_color color = kNavy;
    for (const char* text : {"", "#", "ff8000", "#ff800", "#ff80001", "#ff80 0", "#-f8000",
                             "#gg8000", " #ff8000", "#ff8000 ", "red"}) {
        EXPECT_FALSE(ParseColor(text, &color)) << text;
    }
    EXPECT_EQ(color, kNavy);
}

TEST(ColorText, ListsHaveEachColorOnce) {
    Colors colors;
    EXPECT_TRUE(ParseColors(" #ff8000,#00007f , #FF8000\t", 9, &colors));
    EXPECT_EQ(colors, (Colors{kOrange, kNavy}));
    EXPECT_TRUE(ParseColors("#ff8000 #00007f", 1, &colors));
    EXPECT_EQ(colors, Colors{kOrange});
    EXPECT_TRUE(ParseColors("", 9, &colors));
    EXPECT_TRUE(colors.empty());
}

TEST(ColorText, WhatIsNoColorIsPassedOverAndTold) {
    Colors colors;
    EXPECT_FALSE(ParseColors("blue #00007f #12", 9, &colors));
    EXPECT_EQ(colors, Colors{kNavy});
}

TEST(ColorText, IsWrittenAsItIsRead) {
    EXPECT_EQ(TextOfColor(kOrange), "#ff8000");
}

}  // namespace kirto::test
