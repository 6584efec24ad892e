#include "effects/pictures/overlay_edit.h"

#include <gtest/gtest.h>
#include <limits>

#include "effects/pictures/canvas_pixels.h"
#include "effects/pictures/edit_pictures.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Pixels = std::vector<uint32>;

// A document of frames of one pixel, in the corner of a canvas of 3 x 2.
struct OverlayFixture : DocumentFixture {
    explicit OverlayFixture(int32 frames = 1) {
        for (int32 i = 0; i < frames; ++i)
            AppendFrame(document, PictureOf(1, 1, {0xFF000000}), "a");
        EditOf(document)->width = 3;
        EditOf(document)->height = 2;
    }
    void Draw(const std::shared_ptr<const Picture>& picture, int32 x, int32 y,
              const OverlayFading& fading = {}) {
        const FrameSet all = FrameSet::AllOf(document.FrameCount());
        const OverlayEdit edit(picture, x, y, fading, *document.Current(), all);
        EXPECT_EQ(EditPictures(document, edit, all), EditEnd::kDone);
    }
    Pixels Canvas(int32 frame = 0) const {
        Pixels pixels;
        for (int32 y = 0; y < 2; ++y) {
            for (int32 x = 0; x < 3; ++x)
                pixels.push_back(PixelOnPlane(*document.FrameAt(frame), x, y));
        }
        return pixels;
    }
};

std::shared_ptr<const Picture> Dot(uint32 pixel, color_space space = B_RGBA32) {
    return FramePictureOf(1, 1, {pixel}, space);
}

TEST(OverlayEdit, CoversWhereItIsOpaque) {
    OverlayFixture fixture;
    fixture.Draw(Dot(0xFF123456), 0, 0);
    EXPECT_EQ(fixture.Canvas(), (Pixels{0xFF123456, 0, 0, 0, 0, 0}));
}

TEST(OverlayEdit, GrowsAFrameThatIsTooSmallForIt) {
    OverlayFixture fixture;
    fixture.Draw(Dot(0xFF123456), 1, 1);
    EXPECT_EQ(fixture.Canvas(), (Pixels{0xFF000000, 0, 0, 0, 0xFF123456, 0}));
    EXPECT_EQ(fixture.document.FrameAt(0)->width, 2);
    EXPECT_EQ(fixture.document.FrameAt(0)->height, 2);
}

TEST(OverlayEdit, GrowsAFrameToTheLeftAndUp) {
    OverlayFixture fixture;
    FrameEditOf(fixture.document, 0)->x_offset = 2;
    FrameEditOf(fixture.document, 0)->y_offset = 1;
    fixture.Draw(Dot(0xFF123456), 0, 0);
    EXPECT_EQ(fixture.Canvas(), (Pixels{0xFF123456, 0, 0, 0, 0, 0xFF000000}));
    EXPECT_EQ(fixture.document.FrameAt(0)->x_offset, 0);
}

TEST(OverlayEdit, IsCutAtTheCanvas) {
    OverlayFixture fixture;
    const Pixels row(9, 0xFF0000FF);
    fixture.Draw(FramePictureOf(9, 1, row), -3, 0);
    EXPECT_EQ(fixture.Canvas(), (Pixels{0xFF0000FF, 0xFF0000FF, 0xFF0000FF, 0, 0, 0}));
    EXPECT_EQ(fixture.document.FrameAt(0)->width, 3);
}

TEST(OverlayEdit, ChangesNothingWhereItIsBesideTheCanvasOrInvisible) {
    OverlayFixture fixture;
    const auto before = fixture.document.Current();
    fixture.Draw(Dot(0xFF123456), 3, 0);
    fixture.Draw(Dot(0xFF123456), -1, 0);
    fixture.Draw(Dot(0xFF123456), 0, 0, {0, 0, 0});
    EXPECT_EQ(fixture.document.Current(), before);
}

TEST(OverlayEdit, MixesByAlphaAndOpacity) {
    OverlayFixture fixture;
    fixture.Draw(Dot(0x80FF8000), 0, 0);
    EXPECT_EQ(fixture.Canvas().front(), 0xFF804000);
    OverlayFixture half;
    half.Draw(Dot(0xFFFF8000), 0, 0, {50, 0, 0});
    EXPECT_EQ(half.Canvas().front(), 0xFF804000);
}

TEST(OverlayEdit, AddsAlphaWhereThereIsLittle) {
    OverlayFixture fixture;
    fixture.Draw(Dot(0x80112233), 1, 0);
    EXPECT_EQ(fixture.Canvas()[1], 0x80112233);
    fixture.Draw(Dot(0x80112233), 1, 0);
    EXPECT_EQ(fixture.Canvas()[1], 0xC0112233);
}

TEST(OverlayEdit, TakesPicturesOfEverySpace) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        OverlayFixture fixture;
        fixture.Draw(Dot(0xFF123456, space), 0, 0);
        EXPECT_EQ(fixture.Canvas().front(), 0xFF123456);
    }
}

TEST(OverlayEdit, FadesInAndOutOverTheFrames) {
    OverlayFixture fixture(6);
    fixture.Draw(Dot(0xFFFFFFFF), 0, 0, {100, 1, 2});
    Pixels shades;
    for (int32 i = 0; i < 6; ++i)
        shades.push_back(fixture.Canvas(i).front() & 255);
    EXPECT_EQ(shades, (Pixels{128, 255, 255, 255, 170, 85}));
}

TEST(OverlayEdit, ChangesNothingWhereAFrameIsTooFarAwayToReachIt) {
    OverlayFixture fixture;
    AppendFrame(fixture.document, PictureOf(2, 1, {~0u, ~0u}), "far");
    FrameEditOf(fixture.document, 1)->x_offset = std::numeric_limits<int32>::max();
    const auto before = fixture.document.Current();
    const FrameSet all = FrameSet::AllOf(2);
    const OverlayEdit edit(Dot(0xFF123456), 0, 0, {}, *before, all);

    EXPECT_EQ(EditPictures(fixture.document, edit, all), EditEnd::kOutOfMemory);
    EXPECT_EQ(fixture.document.Current(), before);
}

TEST(OverlayEdit, LeavesStripsThatItDoesNotTouchAsTheyAre) {
    DocumentFixture fixture;
    const Pixels pixels(4 * 200, 0xFF0000FF);
    AppendFrame(fixture.document, PictureOf(4, 200, pixels), "a");
    EditOf(fixture.document)->width = 4;
    EditOf(fixture.document)->height = 200;
    const auto before = fixture.document.FrameAt(0)->bitmap;
    const FrameSet all = FrameSet::AllOf(1);
    const OverlayEdit edit(Dot(0xFF123456), 1, 199, {}, *fixture.document.Current(), all);
    EditPictures(fixture.document, edit, all);
    const auto after = fixture.document.FrameAt(0)->bitmap;
    EXPECT_EQ(after->AllStrips().front(), before->AllStrips().front());
    EXPECT_NE(after->AllStrips().back(), before->AllStrips().back());
}

}  // namespace

}  // namespace kirto::test
