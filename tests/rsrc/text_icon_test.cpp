#include "main/rsrc/text_icon.h"

#include <gtest/gtest.h>

#include "color/builtin_palettes.h"

namespace kirto::test {

namespace {

// An image of 2 x 2: black and transparent above, two colours below.
std::string Icon(const std::string& size, const std::string& colors, const std::string& rows) {
    return "/* XPM */\nstatic const char *icon[] = {\n" + size + colors + rows + "};\n";
}

const std::string kSize = "\"2 2 4 1\",\n";
const std::string kColors = "\"# c #000000\",\n\". c None\",\n\"b c #3398ff\",\n\"g c #3398FE\",\n";
const std::string kRows = "\"#.\",\n\"bg\"\n";

std::string ErrorOf(const std::string& text) {
    std::string error;
    EXPECT_FALSE(ReadTextIcon(text, 2, &error).has_value());
    return error;
}

constexpr const char* kNoImage = "not an XPM image of 2 x 2 with one character per pixel";
constexpr const char* kNoColor = "a color that is neither \"X c #RRGGBB\" nor \"X c None\"";

}  // namespace

TEST(TextIcon, GivesIndicesOfTheSystemPalette) {
    std::string error;
    const auto pixels = ReadTextIcon(Icon(kSize, kColors, kRows), 2, &error);
    ASSERT_TRUE(pixels.has_value()) << error;
    ASSERT_EQ(pixels->size(), 4u);
    EXPECT_EQ((*pixels)[0], 0);
    EXPECT_EQ((*pixels)[1], kTransparentIconIndex);
    EXPECT_EQ(kSystemColors[(*pixels)[2]], (rgb_color{51, 152, 255, 255}));
    // The nearest, where the palette lacks the colour.
    EXPECT_EQ((*pixels)[3], (*pixels)[2]);
}

TEST(TextIcon, NoColourBecomesTheTransparentIndex) {
    std::string error;
    const rgb_color last = kSystemColors[kTransparentIconIndex];
    char line[32];
    std::snprintf(line, sizeof(line), "\"x c #%02X%02X%02X\",\n", last.red, last.green, last.blue);
    const auto pixels = ReadTextIcon("\"1 1 1 1\"," + std::string(line) + "\"x\"", 1, &error);
    ASSERT_TRUE(pixels.has_value()) << error;
    EXPECT_NE(pixels->front(), kTransparentIconIndex);
}

TEST(TextIcon, RefusesOtherSizes) {
    EXPECT_EQ(ErrorOf(""), kNoImage);
    EXPECT_EQ(ErrorOf("\"2 2 4 1"), kNoImage);
    EXPECT_EQ(ErrorOf(Icon("\"3 2 4 1\",", kColors, kRows)), kNoImage);
    EXPECT_EQ(ErrorOf(Icon("\"2 2 4 2\",", kColors, kRows)), kNoImage);
    EXPECT_EQ(ErrorOf(Icon("\"2 2 4x 1\",", kColors, kRows)), kNoImage);
    EXPECT_EQ(ErrorOf(Icon("\"2 2 x 1\",", kColors, kRows)), kNoImage);
    EXPECT_EQ(ErrorOf(Icon("\"2 2 1\",", kColors, kRows)), kNoImage);
    EXPECT_EQ(ErrorOf(Icon("\"2 2 18446744073709551615 1\",", kColors, kRows)), kNoImage);
    EXPECT_EQ(ErrorOf(Icon(kSize, kColors, "\"#.\"")), kNoImage);
    EXPECT_EQ(ErrorOf(Icon(kSize, kColors, kRows + "\"..\"")), kNoImage);
}

TEST(TextIcon, RefusesColoursThatAreNone) {
    const std::string rest = "\". c None\",\"b c #3399FF\",\"g c #3399FE\",";
    EXPECT_EQ(ErrorOf(Icon(kSize, "\"# c black\"," + rest, kRows)), kNoColor);
    EXPECT_EQ(ErrorOf(Icon(kSize, "\"# c #00000\"," + rest, kRows)), kNoColor);
    EXPECT_EQ(ErrorOf(Icon(kSize, "\"# c #00000g\"," + rest, kRows)), kNoColor);
    EXPECT_EQ(ErrorOf(Icon(kSize, "\"# c #-00001\"," + rest, kRows)), kNoColor);
    EXPECT_EQ(ErrorOf(Icon(kSize, "\"# m #000000\"," + rest, kRows)), kNoColor);
    EXPECT_EQ(ErrorOf(Icon(kSize, "\"#\"," + rest, kRows)), kNoColor);
}

TEST(TextIcon, RefusesRowsWithOtherPixels) {
    EXPECT_EQ(ErrorOf(Icon(kSize, kColors, "\"#.\",\"b?\"")),
              "row 1 does not have exactly 2 known characters");
    EXPECT_EQ(ErrorOf(Icon(kSize, kColors, "\"#..\",\"bg\"")),
              "row 0 does not have exactly 2 known characters");
    EXPECT_EQ(ErrorOf(Icon(kSize, kColors, "\"#.?\",\"bg\"")),
              "row 0 does not have exactly 2 known characters");
}

}  // namespace kirto::test
