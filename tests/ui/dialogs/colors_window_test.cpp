#include "ui/dialogs/colors_window.h"

#include <QTest>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

class ColorsWindowTest : public testing::Test {
  protected:
    ColorsWindowTest() {
        Palette palette;
        palette.mode = kPaletteFromFile;
        palette.size = 4;
        palette.bits = 2;
        palette.colors = {};
        palette.colors[1] = {255, 0, 0, 255};
        palette.background_index = 2;
        EditOf(fixture_.document)->palette = std::make_shared<const Palette>(palette);
        AppendFrame(fixture_.document, PictureOf(2, 1, {kRed, kRed}), "first");
        AppendFrame(fixture_.document, PictureOf(1, 1, {kRed}), "second");
        Take();
        window_.show();
    }
    void Take() {
        shown_.Take(fixture_.document);
        window_.UpdateDisplay();
    }
    // Waits until the window tells this of color 1.
    ::testing::AssertionResult Tells(const QString& text) {
        const bool tells = QTest::qWaitFor(
            [&] { return window_.swatches->NameOf(1) == "Color 1, #ff0000, " + text; });
        if (tells) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << window_.swatches->NameOf(1).toStdString();
    }

    DocumentFixture fixture_;
    std::shared_ptr<PortRecorder> application_ = std::make_shared<PortRecorder>();
    ShownDocument shown_;
    ColorsWindow window_{shown_, BMessenger(application_), nullptr};
};

TEST_F(ColorsWindowTest, CountsThePixelsOfTheCurrentFrameOrOfAll) {
    EXPECT_TRUE(Tells("2 pixels"));
    EXPECT_EQ(window_.swatches->Count(), 4);
    window_.scope->setCurrentIndex(1);
    EXPECT_TRUE(Tells("3 pixels"));
    window_.scope->setCurrentIndex(0);
    fixture_.document.Select(1);
    Take();
    EXPECT_TRUE(Tells("1 pixels"));
}

TEST_F(ColorsWindowTest, MarksTheBackgroundAndTheTransparentColor) {
    PaletteEditOf(fixture_.document)->background_index = 1;
    Take();
    EXPECT_TRUE(Tells("2 pixels, background"));
    PaletteEditOf(fixture_.document)->transparent_index = 1;
    PaletteEditOf(fixture_.document)->use_transparent = true;
    Take();
    EXPECT_TRUE(Tells("2 pixels, background, transparent"));
    FrameEditOf(fixture_.document, 0)->local_palette = true;
    FrameEditOf(fixture_.document, 0)->palette = fixture_.document.Current()->palette;
    Take();
    EXPECT_TRUE(Tells("2 pixels, transparent"));
}

TEST_F(ColorsWindowTest, OnlyTellsUntilAClickIsToDoMore) {
    ASSERT_TRUE(Tells("2 pixels"));
    window_.swatches->Choose(1);
    EXPECT_EQ(application_->Transcript(), "");
    EXPECT_EQ(window_.told->text(), window_.swatches->NameOf(1));
}

TEST_F(ColorsWindowTest, ChoosesTheBackgroundByTheCommandOfThePanel) {
    ASSERT_TRUE(Tells("2 pixels"));
    window_.click->setCurrentIndex(1);
    window_.swatches->Choose(3);
    const std::vector<BMessage> messages = application_->Messages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].what, kSetBackgroundIndex);
    int32 value = -1;
    messages[0].FindInt32("value", &value);
    EXPECT_EQ(value, 3);
}

TEST_F(ColorsWindowTest, ChoosesTheTransparentColorAndMakesItCount) {
    ASSERT_TRUE(Tells("2 pixels"));
    window_.click->setCurrentIndex(2);
    window_.swatches->Choose(3);
    EXPECT_EQ(application_->TakeTranscript(),
              CodeText(kUseTransparent) + " " + CodeText(kSetTransparentIndex));
    PaletteEditOf(fixture_.document)->use_transparent = true;
    Take();
    window_.swatches->Choose(1);
    EXPECT_EQ(application_->TakeTranscript(), CodeText(kSetTransparentIndex));
}

TEST_F(ColorsWindowTest, HasNoColorsWithoutFrames) {
    ASSERT_TRUE(Tells("2 pixels"));
    fixture_.document.Reset();
    Take();
    EXPECT_EQ(window_.swatches->Count(), 0);
    EXPECT_EQ(window_.told->text(), "");
}

}  // namespace

}  // namespace kirto::test
