#include "resources/rescale_archive.h"

#include <gtest/gtest.h>

#include "resources/window_archive.h"

namespace kirto::test {
namespace {

constexpr float kDrawnHeight = 11.9873046875f;
const BRect kFrame(10, 20, 110, 220);

BMessage ViewOf(BRect frame) {
    BMessage view;
    view.AddString("class", "BView");
    view.AddRect("_frame", frame);
    return view;
}

BRect FrameOf(const BMessage& archive) {
    BRect frame;
    archive.FindRect("_frame", &frame);
    return frame;
}

BMessage ChildOf(const BMessage& archive, const char* field, int32 index = 0) {
    BMessage child;
    EXPECT_EQ(archive.FindMessage(field, &child, index), B_OK);
    return child;
}

BRect Grown(BRect frame, float factor) {
    return {frame.left * factor + 0.5f, frame.top * factor + 0.5f, frame.right * factor + 0.5f,
            frame.bottom * factor + 0.5f};
}

TEST(RescaleArchive, ScalesByTheFontsHeightAndThreePercentMoreAndAddsAHalf) {
    BMessage archive = ViewOf(kFrame);
    archive.AddFloat("designfsize", 10);

    const BRect frame = FrameOf(RescaleArchive(archive, 0, 20));

    EXPECT_FLOAT_EQ(frame.left, 10 * 2 * 1.03f + 0.5f);
    EXPECT_FLOAT_EQ(frame.top, 20 * 2 * 1.03f + 0.5f);
    EXPECT_FLOAT_EQ(frame.right, 110 * 2 * 1.03f + 0.5f);
    EXPECT_FLOAT_EQ(frame.bottom, 220 * 2 * 1.03f + 0.5f);
}

TEST(RescaleArchive, TakesTheUsualFontWhereTheLayoutNamesNone) {
    const BMessage archive = ViewOf(kFrame);

    EXPECT_EQ(RescaleArchive(archive, 0, kDrawnHeight), archive);
    EXPECT_EQ(FrameOf(RescaleArchive(archive, 0, kDrawnHeight * 2)), Grown(kFrame, 2 * 1.03f));
}

TEST(RescaleArchive, ChangesNothingWithinOnePercentOfTheDesignedSize) {
    BMessage archive = ViewOf(kFrame);
    archive.AddFloat("designfsize", 100);

    EXPECT_EQ(RescaleArchive(archive, 0, 99.5f), archive);
    EXPECT_EQ(RescaleArchive(archive, 0, 100), archive);
    EXPECT_EQ(RescaleArchive(archive, 0, 100.5f), archive);
}

TEST(RescaleArchive, ScalesFromOnePercentOn) {
    BMessage archive = ViewOf(kFrame);
    archive.AddFloat("designfsize", 100);

    EXPECT_EQ(FrameOf(RescaleArchive(archive, 0, 99)), Grown(kFrame, 0.99f * 1.03f));
    EXPECT_EQ(FrameOf(RescaleArchive(archive, 0, 101)), Grown(kFrame, 1.01f * 1.03f));
}

TEST(RescaleArchive, TakesAFactorThatIsGiven) {
    const BMessage archive = ViewOf(kFrame);

    EXPECT_EQ(FrameOf(RescaleArchive(archive, 0.5f, 99)), Grown(kFrame, 0.5f * 1.03f));
    EXPECT_EQ(RescaleArchive(archive, 1, 99), archive);
    EXPECT_NE(RescaleArchive(archive, 0.0009f, 99), archive);
    EXPECT_EQ(FrameOf(RescaleArchive(archive, 0.001f, 99)), Grown(kFrame, 0.001f * 1.03f));
}

TEST(RescaleArchive, ScalesTheChildrenOfChildrenInPlace) {
    BMessage archive = ViewOf(kFrame);
    BMessage parent = ViewOf({1, 2, 3, 4});
    parent.AddMessage("_views", ViewOf({5, 6, 7, 8}));
    archive.AddMessage("_views", ViewOf({0, 0, 1, 1}));
    archive.AddMessage("_views", parent);

    const BMessage grown = RescaleArchive(archive, 2, 99);

    const BMessage second = ChildOf(grown, "_views", 1);
    EXPECT_EQ(FrameOf(ChildOf(grown, "_views", 0)), Grown({0, 0, 1, 1}, 2 * 1.03f));
    EXPECT_EQ(FrameOf(second), Grown({1, 2, 3, 4}, 2 * 1.03f));
    EXPECT_EQ(FrameOf(ChildOf(second, "_views")), Grown({5, 6, 7, 8}, 2 * 1.03f));
    EXPECT_EQ(grown.CountItems("_views"), 2);
}

TEST(RescaleArchive, LeavesWhatTabsShowAndEverythingElseAlone) {
    BMessage archive = ViewOf(kFrame);
    archive.AddMessage("_view_list", ViewOf({5, 6, 7, 8}));
    archive.AddString("_label", "Width:");
    archive.AddFloat("minWidth", 400);

    BMessage expected = archive;
    expected.ReplaceRect("_frame", Grown(kFrame, 2 * 1.03f));
    EXPECT_EQ(RescaleArchive(archive, 2, 99), expected);
}

TEST(RescaleArchive, GivesNoFrameToAnArchiveWithoutOne) {
    BMessage archive;
    archive.AddMessage("_views", ViewOf({5, 6, 7, 8}));

    const BMessage grown = RescaleArchive(archive, 2, 99);

    EXPECT_FALSE(grown.HasField("_frame"));
    EXPECT_EQ(FrameOf(ChildOf(grown, "_views")), Grown({5, 6, 7, 8}, 2 * 1.03f));
}

}  // namespace
}  // namespace kirto::test
