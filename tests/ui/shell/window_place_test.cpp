#include "ui/shell/window_place.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

constexpr QMargins kDecoration(2, 20, 2, 2);

TEST(WindowPlace, IsFirstAsLargeAsIsComfortableInTheMiddleOfTheScreen) {
    EXPECT_EQ(FirstPlace({800, 600}, QRect(0, 0, 1920, 1080), kDecoration),
              QRect(410, 189, 1100, 720));
}

TEST(WindowPlace, IsFirstLargerWhereTheContentNeedsIt) {
    EXPECT_EQ(FirstPlace({1200, 900}, QRect(0, 0, 1920, 1080), kDecoration).size(),
              QSize(1200, 900));
}

TEST(WindowPlace, StaysOnASmallScreenWithItsTitle) {
    EXPECT_EQ(FirstPlace({900, 900}, QRect(10, 30, 1024, 600), kDecoration),
              QRect(12, 50, 1020, 578));
}

TEST(WindowPlace, OfASecondScreenIsOnThatScreen) {
    const QRect second(1920, 0, 1920, 1080);

    EXPECT_TRUE(second.contains(FirstPlace({800, 600}, second, kDecoration)));
}

}  // namespace

}  // namespace kirto::test
