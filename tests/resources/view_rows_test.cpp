#include "resources/view_rows.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace kirto::test {
namespace {

constexpr float kWidth = 200;

// The rows as text: "0 1 / apart 2 / indented 3".
std::string RowsText(const std::vector<BRect>& frames) {
    std::string text;
    for (const ViewRow& row : RowsOf(frames, kWidth)) {
        if (!text.empty()) text += " /";
        if (row.apart) text += " apart";
        if (row.indented) text += " indented";
        if (row.at_right) text += " right";
        for (const size_t view : row.views) {
            text += " " + std::to_string(view);
        }
    }
    return text.starts_with(' ') ? text.substr(1) : text;
}

TEST(ViewRows, NoFramesMakeNoRows) {
    EXPECT_EQ(RowsText({}), "");
}

TEST(ViewRows, FramesBelowEachOtherAreRowsFromTheTop) {
    EXPECT_EQ(RowsText({{10, 34, 90, 52}, {10, 10, 90, 28}}), "1 / 0");
}

TEST(ViewRows, FramesBesideEachOtherAreOneRowFromTheLeft) {
    EXPECT_EQ(RowsText({{100, 10, 190, 28}, {10, 12, 90, 30}}), "1 0");
}

TEST(ViewRows, FramesThatShareLessThanHalfTheirHeightAreTwoRows) {
    EXPECT_EQ(RowsText({{10, 10, 90, 28}, {10, 20, 190, 38}}), "0 / 1");
    EXPECT_EQ(RowsText({{10, 10, 90, 28}, {100, 18, 190, 36}}), "0 1");
}

TEST(ViewRows, HalfARowsHeightOfSpaceSetsARowApart) {
    EXPECT_EQ(RowsText({{10, 10, 90, 28}, {10, 36, 90, 54}}), "0 / 1");
    EXPECT_EQ(RowsText({{10, 10, 90, 28}, {10, 37, 90, 55}}), "0 / apart 1");
}

TEST(ViewRows, TheFirstRowIsNeverApart) {
    EXPECT_EQ(RowsText({{10, 90, 90, 108}}), "0");
}

TEST(ViewRows, ARowThatBeginsFartherToTheRightIsIndented) {
    EXPECT_EQ(RowsText({{10, 10, 190, 28}, {22, 30, 190, 48}}), "0 / indented 1");
    EXPECT_EQ(RowsText({{10, 10, 190, 28}, {14, 30, 190, 48}}), "0 / 1");
}

TEST(ViewRows, ARowInTheRightHalfBelongsToTheRightEdge) {
    EXPECT_EQ(RowsText({{101, 10, 140, 28}, {150, 10, 190, 28}}), "right 0 1");
    EXPECT_EQ(RowsText({{10, 10, 90, 28}, {150, 10, 190, 28}}), "0 1");
}

TEST(ViewRows, FramesThatAreNoNumbersLieAtTheOrigin) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    EXPECT_EQ(RowsText({{0, 30, 90, 48}, {none, 90, none, none}, {0, 90, infinite, 99}}),
              "1 / apart 2 / apart 0");
}

TEST(ViewRows, AFrameReachesTheRightMarginWhereThatIsNotMuchWiderThanTheLeftOne) {
    const std::vector<BRect> frames = {{10, 10, 180, 28}, {22, 40, 179, 58}};
    EXPECT_TRUE(ReachesRightMargin(frames[0], frames, kWidth));
    EXPECT_FALSE(ReachesRightMargin(frames[1], frames, kWidth));
}

}  // namespace
}  // namespace kirto::test
