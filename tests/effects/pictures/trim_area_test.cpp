#include "effects/pictures/trim_area.h"

#include <gtest/gtest.h>
#include <limits>

#include "effects/pictures/canvas_pixels.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

PlaneRect Pixel(int32 x, int32 y) {
    return {x, y, 1, 1};
}

// Pixel by pixel.
PlaneRect VisibleAreaPlainly(const Animation& animation) {
    PlaneRect area;
    for (const FramePointer& frame : animation.frames) {
        for (int32 y = 0; y < animation.height; ++y) {
            for (int32 x = 0; x < animation.width; ++x)
                if (PixelOnPlane(*frame, x, y) != 0) area = Around(area, Pixel(x, y));
        }
    }
    return area;
}

PlaneRect ChangedAreaPlainly(const Animation& animation) {
    PlaneRect area;
    for (const FramePointer& frame : animation.frames) {
        for (int32 y = 0; y < animation.height; ++y) {
            for (int32 x = 0; x < animation.width; ++x) {
                if (PixelOnPlane(*frame, x, y) != PixelOnPlane(*animation.FirstFrame(), x, y))
                    area = Around(area, Pixel(x, y));
            }
        }
    }
    return area;
}

TEST(TrimArea, IsTheSmallestOutsideOfWhichAllIsTransparentOrTheSame) {
    for (uint32 seed = 1; seed <= 200; ++seed) {
        DocumentFixture fixture;
        SeededChoices choices(seed);
        FillSomehow(choices, fixture.document);
        EditOf(fixture.document)->width = choices.Between(1, 40);
        EditOf(fixture.document)->height = choices.Between(1, 40);
        const auto animation = fixture.document.Current();
        EXPECT_EQ(VisibleArea(*animation, fixture.document.work), VisibleAreaPlainly(*animation));
        EXPECT_EQ(ChangedArea(*animation, fixture.document.work), ChangedAreaPlainly(*animation));
    }
}

// Pictures that differ in a pixel share all other strips.
TEST(TrimArea, FindsWhatChangesBetweenPicturesThatShareStrips) {
    DocumentFixture fixture;
    std::vector<uint32> pixels(10 * 300, 0xFFFFFFFF);
    const auto first = FramePictureOf(10, 300, pixels);
    Frame frame("a", 10, 300);
    frame.bitmap = first;
    fixture.document.InsertFrame(0, frame);
    Picture::Strips strips = first->AllStrips();
    strips[1] = FramePictureOf(10, strips[1]->Rows(),
                               std::vector<uint32>(static_cast<size_t>(10 * strips[1]->Rows()), 7))
                    ->AllStrips()[0];
    frame = Frame("b", 10, 300);
    frame.bitmap = Picture::Of(strips, 10, B_RGB32, nullptr);
    fixture.document.InsertFrame(1, frame);
    EditOf(fixture.document)->width = 12;
    EditOf(fixture.document)->height = 300;
    const auto animation = fixture.document.Current();
    EXPECT_EQ(ChangedArea(*animation, fixture.document.work), ChangedAreaPlainly(*animation));
    EXPECT_EQ(VisibleArea(*animation, fixture.document.work), (PlaneRect{0, 0, 10, 300}));
}

// Memory and time go by what frames have, not by the canvas.
TEST(TrimArea, LooksAtNoMoreOfAHugeCanvasThanItsFrames) {
    constexpr int32 kFarthest = std::numeric_limits<int32>::max();
    DocumentFixture fixture;
    AppendFrame(fixture.document, PictureOf(2, 1, {0xFF000000, 0xFF000001}), "near");
    AppendFrame(fixture.document, PictureOf(1, 2, {0xFF000000, 0xFF000001}), "far");
    FrameEditOf(fixture.document, 1)->x_offset = kFarthest - 1;
    FrameEditOf(fixture.document, 1)->y_offset = kFarthest - 1;
    EditOf(fixture.document)->width = kFarthest;
    EditOf(fixture.document)->height = kFarthest;
    const auto animation = fixture.document.Current();
    const PlaneRect whole = {0, 0, kFarthest, kFarthest};
    EXPECT_EQ(VisibleArea(*animation, fixture.document.work), whole);
    EXPECT_EQ(ChangedArea(*animation, fixture.document.work), whole);
}

TEST(TrimArea, IsEmptyWithoutFramesOrChanges) {
    DocumentFixture fixture;
    EXPECT_TRUE(VisibleArea(*fixture.document.Current(), fixture.document.work).Empty());
    AppendFrame(fixture.document, PictureOf(1, 1, {0xFF000000}), "a");
    EXPECT_TRUE(ChangedArea(*fixture.document.Current(), fixture.document.work).Empty());
}

}  // namespace

}  // namespace kirto::test
