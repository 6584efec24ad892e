#include "ui/dialogs/fade_window.h"

#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "resources/qt/text_control.h"
#include "support/test_support.h"
#include "ui/controls/rt_color_control.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

constexpr const char* kRefusal = "WARNING [] Frame count must be between 1 and 100. | OK";

struct FadeWindowTest : testing::Test {
    std::shared_ptr<PortRecorder> application = std::make_shared<PortRecorder>();
    AlertRecorder alerts;
    QPointer<FadeWindow> window = new FadeWindow(BMessenger(application), nullptr);

    FadeWindowTest() {
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    }
    ~FadeWindowTest() override { delete window; }

    QComboBox* Mode() const { return Named<QComboBox>(*window, "ModeMenuField"); }
    TextControl* FrameCount() const { return Named<TextControl>(*window, "FrameCount"); }
    RTColorControl* Color() const { return Named<RTColorControl>(*window, "ColorControl"); }
    void Choose(int item) const {
        Mode()->setCurrentIndex(item);
        emit Mode()->activated(item);
        QCoreApplication::processEvents();
    }
    // Types the count, as yet unconfirmed.
    void Type(const QString& text) const {
        FrameCount()->setFocus();
        FrameCount()->selectAll();
        QTest::keyClicks(FrameCount(), text);
    }
    // Confirms what was typed by leaving the field.
    void Leave() const {
        QTest::keyClick(FrameCount(), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    void Click(const char* button) const {
        QTest::mouseClick(Named<QPushButton>(*window, button), Qt::LeftButton);
    }
    bool Closes() const {
        return WaitFor([this] { return window.isNull(); });
    }
    // The one fade that was asked for.
    BMessage Fade() const {
        const std::vector<BMessage> messages = application->Messages();
        EXPECT_EQ(messages.size(), 1u);
        return messages.empty() ? BMessage() : messages.front();
    }
    int32 FadeNumber(const char* field) const {
        int32 number = -1;
        EXPECT_EQ(Fade().FindInt32(field, &number), B_OK);
        return number;
    }
};

}  // namespace

TEST_F(FadeWindowTest, SaysThatItWorksOnTheCurrentFrame) {
    EXPECT_EQ(Named<QLabel>(*window, "Scope")->text(),
              "Blends the current frame alone, whatever else is selected.");
}

TEST_F(FadeWindowTest, ShowsItsControls) {
    EXPECT_EQ(window->windowTitle(), "Fade Effects");
    EXPECT_FALSE(window->isModal());
    EXPECT_TRUE(Named<QWidget>(*window, "Toolbar")->isVisible());
    EXPECT_EQ(FrameCount()->text(), "1");
    EXPECT_EQ(Named<QLabel>(*window, "PreviewString")->text(), "Preview:");
    EXPECT_EQ(Named<QPushButton>(*window, "OK")->text(), "OK");
    EXPECT_EQ(Named<QPushButton>(*window, "Cancel")->text(), "Cancel");
}

TEST_F(FadeWindowTest, StaysAtLeast350By135PixelsHoweverItIsSized) {
    window->adjustSize();
    EXPECT_GE(window->width(), 350);
    EXPECT_GE(window->height(), 135);
    window->resize(1, 1);
    EXPECT_GE(window->width(), 350);
    EXPECT_GE(window->height(), 135);
}

TEST_F(FadeWindowTest, OffersFourKindsOfFades) {
    QStringList items;
    for (int i = 0; i < Mode()->count(); ++i)
        items.append(Mode()->itemText(i));

    EXPECT_EQ(items, (QStringList{"to an rgb color", "from an rgb color", "to next frame",
                                  "from previous frame"}));
    EXPECT_EQ(Mode()->currentIndex(), 0);
}

TEST_F(FadeWindowTest, NamesItsControlsToThoseWhoDoNotSeeThem) {
    EXPECT_EQ(Mode()->accessibleName(), "Fade mode:");
    EXPECT_EQ(FrameCount()->accessibleName(), "Frame count:");
    EXPECT_EQ(Named<QWidget>(*window, "Preview")->accessibleName(), "Preview:");
}

TEST_F(FadeWindowTest, NeedsAColorOnlyForFadesWithAColor) {
    EXPECT_TRUE(Color()->isEnabled());
    Choose(2);
    EXPECT_FALSE(Color()->isEnabled());
    Choose(1);
    EXPECT_TRUE(Color()->isEnabled());
    Choose(3);
    EXPECT_FALSE(Color()->isEnabled());
    Choose(0);
    EXPECT_TRUE(Color()->isEnabled());
}

TEST_F(FadeWindowTest, SendsTheFadeAndCloses) {
    Type("12");
    Leave();
    Color()->SetValue(0x10203000);

    Click("OK");

    ASSERT_TRUE(Closes());
    EXPECT_EQ(application->Transcript(), "fwtr");
    EXPECT_EQ(FadeNumber("count"), 12);
    EXPECT_EQ(FadeNumber("color"), 0x10203000);
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(FadeWindowTest, SendsTheCodeOfTheChosenKind) {
    for (const auto& [item, code] : std::vector<std::pair<int, std::string>>{
             {0, "fwtr"}, {1, "fwfr"}, {2, "fwtf"}, {3, "fwff"}}) {
        Choose(item);
        window->Fade();
        EXPECT_EQ(application->TakeTranscript(), code);
    }
}

TEST_F(FadeWindowTest, RefusesACountOf0WithAnAlertAndLeaves1) {
    Type("0");
    Leave();

    EXPECT_EQ(FrameCount()->text(), "1");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kRefusal});
}

TEST_F(FadeWindowTest, RefusesACountOf101WithAnAlertAndLeaves1) {
    Type("101");
    Leave();

    EXPECT_EQ(FrameCount()->text(), "1");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kRefusal});
}

TEST_F(FadeWindowTest, RefusesWhatIsNoCount) {
    const QStringList texts = {"", "many", "-5", "99999999999999999999"};
    for (const QString& text : texts) {
        FrameCount()->clear();
        FrameCount()->setText(text);
        BMessage confirmed(kFadeCount);
        window->MessageReceived(&confirmed);
        EXPECT_EQ(FrameCount()->text(), "1") << text.toStdString();
    }
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>(4, kRefusal));
}

TEST_F(FadeWindowTest, AcceptsCountsFrom1To100) {
    for (const char* text : {"1", "100"}) {
        Type(text);
        Leave();
        EXPECT_EQ(FrameCount()->text(), text);
    }
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(FadeWindowTest, SendsAnUnconfirmedCountAsItIs) {
    Type("101");

    Click("OK");

    ASSERT_TRUE(Closes());
    EXPECT_EQ(FadeNumber("count"), 101);
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(FadeWindowTest, SendsTheWidestNumberForACountThatIsWider) {
    FrameCount()->setText("99999999999999999999");
    window->Fade();
    EXPECT_EQ(FadeNumber("count"), 2147483647);
}

TEST_F(FadeWindowTest, TakesTheEnterKeyInTheCountForOk) {
    Type("7");

    QTest::keyClick(FrameCount(), Qt::Key_Return);

    ASSERT_TRUE(Closes());
    EXPECT_EQ(FadeNumber("count"), 7);
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(FadeWindowTest, StaysOpenWhenTheEnterKeyConfirmsARefusedCount) {
    Type("101");

    QTest::keyClick(FrameCount(), Qt::Key_Enter);
    QCoreApplication::processEvents();

    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(FrameCount()->text(), "1");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kRefusal});
    EXPECT_EQ(application->Transcript(), "");
}

TEST_F(FadeWindowTest, TakesTheEnterKeyElsewhereForOk) {
    Mode()->setFocus();
    QTest::keyClick(Mode(), Qt::Key_Return);
    ASSERT_TRUE(Closes());
    EXPECT_EQ(application->Transcript(), "fwtr");
}

TEST_F(FadeWindowTest, ClosesWithoutAFadeOnCancel) {
    Click("Cancel");
    ASSERT_TRUE(Closes());
    EXPECT_EQ(application->Transcript(), "");
}

TEST_F(FadeWindowTest, ClosesWithoutAFadeOrAnAlertOnEscape) {
    Type("101");
    QTest::keyClick(FrameCount(), Qt::Key_Escape);
    ASSERT_TRUE(Closes());
    EXPECT_EQ(application->Transcript(), "");
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST_F(FadeWindowTest, AsksForOneFadeWhenOkIsClickedTwice) {
    Click("OK");
    if (window) Click("OK");
    ASSERT_TRUE(Closes());
    EXPECT_EQ(application->Transcript(), "fwtr");
}

TEST_F(FadeWindowTest, HasNoAddressOnceItIsGone) {
    const BMessenger messenger = window->Messenger();
    EXPECT_TRUE(messenger.IsValid());
    delete window;
    EXPECT_EQ(messenger.SendMessage(kFadeOk), B_NOT_ALLOWED);
}

TEST_F(FadeWindowTest, LeavesOtherCommandsAlone) {
    BMessage other(kPreview);
    window->MessageReceived(&other);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(application->Transcript(), "");
}

}  // namespace kirto::test
