#include "ui/thumbnails/thumbnail_view.h"

#include <QComboBox>
#include <QPushButton>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {
namespace {

template <typename Widget>
Widget& Named(ThumbnailFixture& fixture, const char* name) {
    return *fixture.view->findChild<Widget*>(name);
}

QString Label(ThumbnailFixture& fixture) {
    return Named<QLabel>(fixture, "FrameHeight").text();
}

TEST(ThumbnailView, StartsWithThumbnailsOfAHundredPixels) {
    ThumbnailFixture fixture({});
    EXPECT_EQ(Label(fixture), "Thumbnail height: 100");
    EXPECT_EQ(fixture.view->SliderValue(), 100);
    EXPECT_EQ(fixture.Grid().ThumbnailHeight(), 100);
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(ThumbnailView, TellsTheWindowThatTheSliderMoves) {
    ThumbnailFixture fixture({});
    Named<QSlider>(fixture, "Slider").setValue(150);
    EXPECT_EQ(fixture.window->Transcript(), "tvsl");
    EXPECT_EQ(fixture.view->SliderValue(), 150);
    EXPECT_EQ(fixture.Grid().ThumbnailHeight(), 100);
}

TEST(ThumbnailView, SetsLabelSliderAndThumbnailsWithoutSendingAnything) {
    ThumbnailFixture fixture(SameFrames(3, 10, 10));
    fixture.view->SetHeight(64);
    EXPECT_EQ(Label(fixture), "Thumbnail height: 64");
    EXPECT_EQ(fixture.view->SliderValue(), 64);
    EXPECT_EQ(fixture.Grid().ThumbnailHeight(), 64);
    EXPECT_EQ(fixture.Grid().Layout().At(0), BRect(4, 5, 67, 68));
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(ThumbnailView, TakesTheSlidersRangeFromTheSettings) {
    ThumbnailFixture fixture({});
    EXPECT_EQ(Named<QSlider>(fixture, "Slider").minimum(), 30);
    EXPECT_EQ(Named<QSlider>(fixture, "Slider").maximum(), 400);
    fixture.fixture.prefs.thumbnail_minheight = 120;
    fixture.fixture.prefs.thumbnail_maxheight = 200;
    fixture.fixture.document.PublishSettings();
    fixture.shown.Take(fixture.fixture.document);
    fixture.view->UpdateDisplay();
    EXPECT_EQ(Named<QSlider>(fixture, "Slider").minimum(), 120);
    EXPECT_EQ(Named<QSlider>(fixture, "Slider").maximum(), 200);
    EXPECT_EQ(Label(fixture), "Thumbnail height: 120");
    EXPECT_EQ(fixture.Grid().ThumbnailHeight(), 120);
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(ThumbnailView, OffersTheHeightsOfFrames) {
    ThumbnailFixture fixture({});
    auto& menu = Named<QComboBox>(fixture, "HeightField");
    QStringList labels;
    for (int i = 0; i < menu.count(); ++i) {
        labels.append(menu.itemText(i));
        emit menu.activated(i);
    }
    EXPECT_EQ(labels, (QStringList{"first half sized", "current half sized", "first full sized",
                                   "current full sized", "Fit"}));
    EXPECT_EQ(fixture.window->Transcript(), "tvfh tvch tvff tvcf tvft");
}

TEST(ThumbnailView, ForgetsItsThumbnailsWhenItIsReset) {
    ThumbnailFixture fixture(SameFrames(100, 100, 100), 50);
    fixture.shown.Reset();
    fixture.view->ResetDisplay();
    EXPECT_EQ(fixture.Grid().Layout().Count(), 0);
    EXPECT_EQ(fixture.Scroll().Top(), 0);
    EXPECT_EQ(fixture.Grid().accessibleDescription(), "no frames");
}

TEST(ThumbnailView, NamesItsViewsAndLeadsTheKeyboardThroughThem) {
    ThumbnailFixture fixture({});
    EXPECT_EQ(fixture.view->objectName(), "ThumbnailView");
    EXPECT_NE(fixture.view->findChild<ThumbScrollView*>("ScrollView"), nullptr);
    EXPECT_EQ(fixture.Grid().objectName(), "ThumbDrawingView");
    EXPECT_EQ(fixture.view->focusProxy(), &fixture.Grid());
    EXPECT_EQ(Named<QSlider>(fixture, "Slider").accessibleName(), "Thumbnail height");
    EXPECT_EQ(Named<QComboBox>(fixture, "HeightField").accessibleName(), "Use frame:");
}

TEST(ThumbnailView, OffersToReadAsBrowsersDoWhereThereIsNoFrame) {
    ThumbnailFixture empty({});
    ThumbnailFixture full(SameFrames(1, 10, 10));

    EXPECT_FALSE(Named<QCheckBox>(empty, "FaithfulChoice").isHidden());
    EXPECT_FALSE(Named<QCheckBox>(empty, "FaithfulChoice").isChecked());
    EXPECT_TRUE(Named<QCheckBox>(full, "FaithfulChoice").isHidden());
}

TEST(ThumbnailView, OffersToOpenAnAnimationOrToInsertImagesWhileThereAreNoFrames) {
    ThumbnailFixture empty({});
    ThumbnailFixture full(SameFrames(1, 10, 10));
    EXPECT_TRUE(Named<QPushButton>(full, "BeginByOpening").parentWidget()->isHidden());

    for (const char* name : {"BeginByOpening", "BeginByInserting"}) {
        QPushButton& button = Named<QPushButton>(empty, name);
        EXPECT_FALSE(button.parentWidget()->isHidden());
        button.click();
    }
    EXPECT_EQ(empty.window->Transcript(), "awfo awfi");
}

TEST(ThumbnailView, ThatChoiceStoresTheSetting) {
    ThumbnailFixture fixture({});

    Named<QCheckBox>(fixture, "FaithfulChoice").click();

    const std::vector<BMessage> messages = fixture.window->Messages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].what, kStoreSettings);
    Prefs stored{Prefs::BuiltIn{}};
    stored.TakeFrom(messages[0]);
    EXPECT_TRUE(stored.animation_faithful);
}

TEST(ThumbnailView, ThatChoiceShowsTheSettingAsItIs) {
    ThumbnailFixture fixture({});
    fixture.fixture.prefs.animation_faithful = true;
    fixture.fixture.document.PublishSettings();
    fixture.shown.Take(fixture.fixture.document);

    fixture.view->UpdateDisplay();

    EXPECT_TRUE(Named<QCheckBox>(fixture, "FaithfulChoice").isChecked());
    EXPECT_EQ(fixture.window->Transcript(), "");
}

}  // namespace
}  // namespace kirto::test
