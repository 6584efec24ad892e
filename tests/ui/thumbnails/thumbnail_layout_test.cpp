#include "ui/thumbnails/thumbnail_layout.h"

#include <gtest/gtest.h>
#include <random>

namespace kirto::test {
namespace {

// count frames of width x height without pixels.
FrameSequence Sizes(int32 count, int32 width, int32 height) {
    FrameSequence frames;
    for (int32 i = 0; i < count; ++i)
        frames.Insert(i, std::make_shared<Frame>("", width, height));
    return frames;
}

ThumbnailLayout LayoutOf(const FrameSequence& frames, int32 height, float right_edge) {
    ThumbnailLayout layout;
    layout.Update(frames, height, right_edge);
    return layout;
}

// The rectangles, one frame after the other.
std::vector<BRect> PlainRectangles(const FrameSequence& frames, int32 height, float right_edge) {
    std::vector<BRect> table;
    const auto h = static_cast<float>(height);
    float left = 4;
    float top = 5;
    for (const FramePointer& frame : frames) {
        const float w = static_cast<float>(frame->width) * h / static_cast<float>(frame->height);
        BRect rect(left, top, left + w - 1, top + h - 1);
        if (!table.empty() && rect.right + 4 >= right_edge) {
            left = 4;
            top = top + h + 5;
            rect = BRect(left, top, left + w - 1, top + h - 1);
        }
        table.push_back(rect);
        left = rect.right + 6;
    }
    return table;
}

TEST(ThumbnailLayout, FindsTheLargestHeightAtWhichAllFit) {
    std::mt19937 random(8);
    const auto number = [&](int32 first, int32 last) {
        return std::uniform_int_distribution<int32>(first, last)(random);
    };
    for (int round = 0; round < 50; ++round) {
        FrameSequence frames;
        for (int32 count = number(1, 30); count > 0; --count)
            frames.Insert(0, std::make_shared<Frame>("", number(1, 900), number(1, 700)));
        const int32 view_height = number(50, 900);
        const auto right_edge = static_cast<float>(number(50, 900));
        constexpr int32 kLeast = 30;
        constexpr int32 kMost = 300;
        int32 plain = kLeast;
        for (int32 height = kLeast; height <= kMost; ++height) {
            const ThumbnailLayout layout = LayoutOf(frames, height, right_edge);
            bool fits = layout.ContentHeight() <= view_height;
            for (int32 i = 0; i < layout.Count(); ++i)
                fits = fits && layout.At(i).right <= right_edge;
            if (fits) plain = height;
        }
        EXPECT_EQ(ThumbnailLayout::FittingHeight(frames, right_edge, view_height, kLeast, kMost),
                  plain)
            << "round " << round;
    }
}

TEST(ThumbnailLayout, EqualsAPlainLoopOnFramesOfAnySize) {
    std::mt19937 random(7);
    const auto number = [&](int32 first, int32 last) {
        return std::uniform_int_distribution<int32>(first, last)(random);
    };
    for (int round = 0; round < 200; ++round) {
        FrameSequence frames;
        for (int32 count = number(0, 60); count > 0; --count)
            frames.Insert(0, std::make_shared<Frame>("", number(1, 900), number(1, 700)));
        const int32 height = number(1, 400);
        const auto right_edge = static_cast<float>(number(0, 2000));
        const ThumbnailLayout layout = LayoutOf(frames, height, right_edge);
        const std::vector<BRect> plain = PlainRectangles(frames, height, right_edge);
        ASSERT_EQ(layout.Count(), static_cast<int32>(plain.size()));
        for (int32 i = 0; i < layout.Count(); ++i)
            ASSERT_EQ(layout.At(i), plain[static_cast<size_t>(i)]) << "round " << round;
    }
}

TEST(ThumbnailLayout, StartsAtTheLeftTopAndLeavesGapsOfFivePixels) {
    const ThumbnailLayout layout = LayoutOf(Sizes(2, 200, 100), 50, 1000);
    EXPECT_EQ(layout.At(0), BRect(4, 5, 103, 54));
    EXPECT_EQ(layout.At(1), BRect(109, 5, 208, 54));
}

TEST(ThumbnailLayout, KeepsWidthsThatAreNoWholePixels) {
    const ThumbnailLayout layout = LayoutOf(Sizes(2, 100, 30), 100, 10000);
    EXPECT_FLOAT_EQ(layout.At(0).right, 4 + 10000.0f / 30 - 1);
    EXPECT_FLOAT_EQ(layout.At(1).left, 4 + 10000.0f / 30 + 5);
}

TEST(ThumbnailLayout, WrapsWhereAThumbnailComesWithinFourPixelsOfTheEdge) {
    EXPECT_EQ(LayoutOf(Sizes(2, 100, 100), 100, 213).At(1), BRect(109, 5, 208, 104));
    EXPECT_EQ(LayoutOf(Sizes(2, 100, 100), 100, 212).At(1), BRect(4, 110, 103, 209));
}

TEST(ThumbnailLayout, NeverWrapsTheFirst) {
    EXPECT_EQ(LayoutOf(Sizes(1, 300, 100), 100, 50).At(0), BRect(4, 5, 303, 104));
}

TEST(ThumbnailLayout, LaysOutOnlyWhatHasChanged) {
    FrameSequence frames = Sizes(3, 10, 10);
    ThumbnailLayout layout;
    EXPECT_TRUE(layout.Update(frames, 20, 100));
    EXPECT_FALSE(layout.Update(frames, 20, 100));
    EXPECT_TRUE(layout.Update(frames, 21, 100));
    EXPECT_TRUE(layout.Update(frames, 21, 99));
    frames.Replace(1, std::make_shared<Frame>("", 11, 10));
    EXPECT_TRUE(layout.Update(frames, 21, 99));
    frames.Remove(2);
    EXPECT_TRUE(layout.Update(frames, 21, 99));
    EXPECT_EQ(layout.Count(), 2);
}

TEST(ThumbnailLayout, PutsTheOutlineFurtherOutAtTheLeftAndTop) {
    EXPECT_EQ(LayoutOf(Sizes(1, 10, 10), 10, 100).OutlineAt(0), BRect(2, 3, 14, 15));
}

TEST(ThumbnailLayout, FindsTheThumbnailsOfAStrip) {
    const ThumbnailLayout layout = LayoutOf(Sizes(10, 100, 100), 100, 220);  // two a row
    EXPECT_EQ(layout.Between(0, 1000), std::pair(0, 10));
    EXPECT_EQ(layout.Between(120, 200), std::pair(2, 4));
    EXPECT_EQ(layout.Between(105, 112), std::pair(0, 4));
    EXPECT_EQ(layout.Between(2000, 3000), std::pair(10, 10));
    EXPECT_EQ(ThumbnailLayout().Between(0, 100), std::pair(0, 0));
}

TEST(ThumbnailLayout, IsAsHighAsTheLastRowAndAGap) {
    EXPECT_EQ(ThumbnailLayout().ContentHeight(), 0);
    EXPECT_EQ(LayoutOf(Sizes(1, 10, 10), 30, 100).ContentHeight(), 5 + 30 + 5);
    EXPECT_EQ(LayoutOf(Sizes(3, 10, 10), 30, 80).ContentHeight(), 5 + 30 + 5 + 30 + 5);
}

TEST(ThumbnailLayout, HitsThumbnailsButNotTheGapsBetweenThem) {
    const ThumbnailLayout layout = LayoutOf(Sizes(4, 100, 100), 100, 220);
    EXPECT_EQ(layout.HitTest({4, 5}), 0);
    EXPECT_EQ(layout.HitTest({103, 104}), 0);
    EXPECT_EQ(layout.HitTest({106, 50}), -1);
    EXPECT_EQ(layout.HitTest({50, 107}), -1);
    EXPECT_EQ(layout.HitTest({3, 5}), -1);
    EXPECT_EQ(layout.HitTest({150, 150}), 3);
    EXPECT_EQ(layout.HitTest({150, 500}), -1);
}

TEST(ThumbnailLayout, LaysOutFramesPastTheThousandthButDoesNotHitThem) {
    const ThumbnailLayout layout = LayoutOf(Sizes(1002, 100, 100), 100, 100);  // one a row
    EXPECT_EQ(layout.At(1001).top, 5 + 1001 * 105);
    EXPECT_EQ(layout.HitTest({10, 5 + 999 * 105}), 999);
    EXPECT_EQ(layout.HitTest({10, 5 + 1000 * 105}), -1);
    EXPECT_EQ(layout.HitTest({10, 5 + 1001 * 105}), -1);
    EXPECT_EQ(layout.DropPosition({10, 5 + 1000 * 105}), 1002);
}

TEST(ThumbnailLayout, DropsBeforeTheThumbnailAtThePointAndInTheGapsLeftAndAboveIt) {
    const ThumbnailLayout layout = LayoutOf(Sizes(4, 100, 100), 100, 220);
    EXPECT_EQ(layout.DropPosition({50, 50}), 0);
    EXPECT_EQ(layout.DropPosition({0, 0}), 0);
    EXPECT_EQ(layout.DropPosition({106, 50}), 1);
    EXPECT_EQ(layout.DropPosition({50, 107}), 2);
    EXPECT_EQ(layout.DropPosition({150, 150}), 3);
}

TEST(ThumbnailLayout, DropsRightOfARowBeforeTheNextRowsFirst) {
    const ThumbnailLayout layout = LayoutOf(Sizes(4, 100, 100), 100, 220);
    EXPECT_EQ(layout.DropPosition({215, 50}), 2);
}

TEST(ThumbnailLayout, DropsBelowAndRightOfTheLastThumbnailBehindIt) {
    const ThumbnailLayout layout = LayoutOf(Sizes(3, 100, 100), 100, 220);
    EXPECT_EQ(layout.DropPosition({150, 150}), 3);
    EXPECT_EQ(layout.DropPosition({50, 500}), 3);
    EXPECT_EQ(ThumbnailLayout().DropPosition({50, 50}), 0);
}

TEST(ThumbnailLayout, ShowsDropPositionsWithABarBeforeTheThumbnailOrBehindTheLast) {
    const ThumbnailLayout layout = LayoutOf(Sizes(2, 100, 100), 100, 500);
    EXPECT_EQ(layout.DropBar(0), BRect(0, 5, 2, 104));
    EXPECT_EQ(layout.DropBar(1), BRect(105, 5, 107, 104));
    EXPECT_EQ(layout.DropBar(2), BRect(210, 5, 211, 104));
    EXPECT_EQ(LayoutOf({}, 100, 500).DropBar(0), BRect(1, 2, 3, 101));
}

TEST(ThumbnailLayout, GivesAFrameWithoutHeightNoWidth) {
    const ThumbnailLayout layout = LayoutOf(Sizes(1, 100, 0), 100, 500);
    EXPECT_EQ(layout.At(0), BRect(4, 5, 3, 104));
}

}  // namespace
}  // namespace kirto::test
