#include "app/caption_layout.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

Animation Canvas(int32 width, int32 height) {
    Animation animation;
    animation.width = width;
    animation.height = height;
    return animation;
}

}  // namespace

TEST(CaptionLayout, MakesTextsAnEighthOfTheHeight) {
    EXPECT_EQ(UsualCaptionSize(Canvas(640, 480)), 60);
    EXPECT_EQ(UsualCaptionSize(Canvas(8, 8)), 10);
    EXPECT_EQ(UsualCaptionSize(Canvas(8, 65535)), 200);
}

TEST(CaptionLayout, LeavesRoomAtEdges) {
    const Animation canvas = Canvas(100, 60);
    const int32 rows[] = {3, 25, 47};
    const int32 columns[] = {3, 40, 77};
    for (int32 anchor = 0; anchor < 9; ++anchor) {
        const CaptionPlace place = PlaceCaption(canvas, 20, 10, anchor);
        EXPECT_EQ(place.x, columns[anchor % 3]) << anchor;
        EXPECT_EQ(place.y, rows[anchor / 3]) << anchor;
    }
}

TEST(CaptionLayout, StandsBelowInTheMiddleEvenIfThereIsNoRoom) {
    const CaptionPlace place = PlaceCaption(Canvas(20, 20), 40, 30, kUsualCaptionAnchor);
    EXPECT_EQ(place.x, -10);
    EXPECT_EQ(place.y, -11);
}

}  // namespace kirto::test
