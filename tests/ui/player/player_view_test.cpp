#include "ui/player/player_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>
#include <limits>

#include "document/command_codes.h"
#include "support/colors.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

constexpr uint32 kFirstColor = 0xFFFA0502;

// A red, a green and a blue frame of 8 x 4 pixels.
class PlayerViewTest : public ::testing::Test {
  protected:
    PlayerViewTest() {
        fixture.document.Change([](Animation& animation) {
            animation.width = 8;
            animation.height = 4;
            animation.use_pause = true;
            animation.pause_length = 2;
        });
        frames = {FrameOf(8, 4, kFirstColor), FrameOf(8, 4, kGreen), FrameOf(8, 4, kBlue)};
        ShowFrames(shown, fixture.document, frames, 0);
        view.resize(500, 400);
    }

    void Open() {
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        EXPECT_TRUE(Paints(view.Playback().Frame()));
    }
    bool Paints(int32 frame) {
        return WaitFor([&] { return view.PaintedFrame() == frame; });
    }
    QRgb ColorInTheMiddle() {
        const QImage image = view.Pane().grab().toImage();
        return image.pixel(image.width() / 2, image.height() / 2);
    }
    bool Shows(uint32 color) {
        return WaitFor([&] { return ColorInTheMiddle() == color; });
    }
    QString Text(const char* label) { return Named<QLabel>(view, label)->text(); }
    // The application selects what it is asked to.
    void Answer() {
        for (const BMessage& message : port->Messages()) {
            int32 number = -1;
            if (message.FindInt32("number", &number) == B_OK) fixture.document.Select(number);
        }
        port->TakeTranscript();
        shown.Take(fixture.document);
        view.UpdateDisplay();
    }

    DocumentFixture fixture;
    std::vector<FramePointer> frames;
    ShownDocument shown;
    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    PlayerView view{shown, BMessenger(port)};
};

TEST_F(PlayerViewTest, ShowsTheCurrentFrameWithItsNumberAndTime) {
    Open();
    EXPECT_TRUE(Shows(kFirstColor));
    EXPECT_EQ(Text("PlayerTime"), "#0 of 3, 0.00 s of 0.06 s");

    QTest::keyClick(&view.Pane(), Qt::Key_Right);
    Answer();

    EXPECT_TRUE(Shows(kGreen));
    EXPECT_EQ(Text("PlayerTime"), "#1 of 3, 0.02 s of 0.06 s");
}

TEST_F(PlayerViewTest, IsUsedByKeys) {
    Open();
    QTest::keyClick(&view.Pane(), Qt::Key_End);
    EXPECT_EQ(view.Playback().Frame(), 2);
    QTest::keyClick(&view.Pane(), Qt::Key_Left);
    EXPECT_EQ(view.Playback().Frame(), 1);
    QTest::keyClick(&view.Pane(), Qt::Key_Home);
    EXPECT_EQ(view.Playback().Frame(), 0);
    QTest::keyClick(&view.Pane(), Qt::Key_Space);
    EXPECT_TRUE(view.Playback().IsPlaying());
    EXPECT_EQ(Named<QToolButton>(view, "Play")->accessibleName(), "Pause");
    QTest::keyClick(&view.Pane(), Qt::Key_Space);
    EXPECT_FALSE(view.Playback().IsPlaying());
    QTest::keyClick(&view.Pane(), Qt::Key_1);
    EXPECT_EQ(view.Pane().Zoom(), 1);
    QTest::keyClick(&view.Pane(), Qt::Key_Plus);
    EXPECT_EQ(Text("PlayerZoom"), "150%");
    QTest::keyClick(&view.Pane(), Qt::Key_Minus);
    QTest::keyClick(&view.Pane(), Qt::Key_0);
    EXPECT_TRUE(view.Pane().IsFitted());
}

TEST_F(PlayerViewTest, PlaysAllFramesOneAfterTheOther) {
    Open();
    std::set<int32> painted;
    view.Pane().WhenPainted([&] { painted.insert(view.PaintedFrame()); });
    view.Playback().SetLoop(Player::Loop::kAlways);

    QTest::mouseClick(Named<QToolButton>(view, "Play"), Qt::LeftButton);

    EXPECT_TRUE(WaitFor([&] { return painted == std::set<int32>{0, 1, 2}; }));
}

TEST_F(PlayerViewTest, WaitsWhileItIsHiddenAndFollowsWhenItIsShown) {
    Open();
    view.Playback().SetLoop(Player::Loop::kAlways);
    view.Playback().Play();
    view.hide();
    for (const QTimer* timer : view.Playback().findChildren<QTimer*>())
        EXPECT_FALSE(timer->isActive());
    view.Playback().Pause();
    ShowFrames(shown, fixture.document, {FrameOf(8, 4, kBlue)}, 0);
    view.UpdateDisplay();

    view.show();

    EXPECT_TRUE(Shows(kBlue));
}

TEST_F(PlayerViewTest, FollowsAnAnimationOfFewerFramesAndAnotherCanvas) {
    Open();
    view.Playback().Play();
    fixture.document.Change([](Animation& animation) { animation.width = 4; });
    ShowFrames(shown, fixture.document, {FrameOf(4, 4, kBlue)}, 0);

    view.UpdateDisplay();

    EXPECT_TRUE(Shows(kBlue));
}

TEST_F(PlayerViewTest, AsksForNothingThatIsGoneWhileItIsHidden) {
    Open();
    view.Playback().Play();
    view.hide();
    ShowFrames(shown, fixture.document, {FrameOf(8, 4, kBlue)}, 0);

    view.Pane().SetCanvas(QSize(3, 3));
    view.show();

    EXPECT_TRUE(Shows(kBlue));
}

TEST_F(PlayerViewTest, LetsTheFramesBesideItBeSeen) {
    fixture.document.Select(1);
    shown.Take(fixture.document);
    Open();
    auto* onion = Named<QComboBox>(view, "OnionSkin");
    onion->setCurrentIndex(1);
    emit onion->activated(1);

    EXPECT_TRUE(WaitFor([&] {
        const QColor mixed(ColorInTheMiddle());
        return std::abs(mixed.red() - 75) < 5 && std::abs(mixed.green() - 180) < 5;
    })) << "0.3 of the previous frame";
    EXPECT_TRUE(Named<QWidget>(view, "OnionOpacity")->isEnabled());
}

TEST_F(PlayerViewTest, ShowsTheColorsThatASaveWouldHave) {
    Open();
    EXPECT_TRUE(Shows(kFirstColor));
    auto* saved = Named<QCheckBox>(view, "SavedColors");
    saved->setChecked(true);
    EXPECT_TRUE(Shows(0xFFFF0000)) << "web safe";
    saved->setChecked(false);
    EXPECT_TRUE(Shows(kFirstColor));
}

TEST_F(PlayerViewTest, PaintsCanvasesAndPlacesThatNoFileHas) {
    constexpr int32 kMost = std::numeric_limits<int32>::max();
    fixture.document.Change([](Animation& animation) {
        animation.width = kMost;
        animation.height = kMost;
    });
    frames[0].reset();
    Frame far("far", 8, 4);
    far.bitmap = frames[1]->bitmap;
    far.x_offset = far.y_offset = kMost;
    frames[0] = std::make_shared<const Frame>(far);
    ShowFrames(shown, fixture.document, frames, 0);
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    for (const double zoom : {1.0, 32.0}) {
        view.Pane().SetZoom(zoom);
        view.UpdateDisplay();
        EXPECT_FALSE(view.grab().isNull()) << zoom;
        EXPECT_NEAR(view.Pane().PixelsOf({0, 0, 65535, 65535}).width(), 65535 * zoom, 1);
    }
}

TEST_F(PlayerViewTest, TellsWhatIsBelowThePointer) {
    Open();
    const QRectF pixel = view.Pane().PlaceOf({3, 2, 1, 1});
    QTest::mouseMove(&view.Pane(), pixel.center().toPoint());
    EXPECT_EQ(Text("PlayerPixel"), "3, 2  #FA0502");
    QTest::mouseMove(&view.Pane(), {1, 1});
    EXPECT_EQ(Text("PlayerPixel"), "");
}

TEST_F(PlayerViewTest, ShowsNothingWithoutFramesOrPictures) {
    ShowFrames(shown, fixture.document, {}, 0);
    view.show();
    EXPECT_TRUE(view.Pane().IsEmpty());
    EXPECT_EQ(Text("PlayerTime"), "");
    EXPECT_FALSE(Named<QToolButton>(view, "Play")->isEnabled());
    ShowFrames(shown, fixture.document, {std::make_shared<Frame>("none", 8, 4)}, 0);
    view.UpdateDisplay();
    EXPECT_TRUE(Paints(0));
    view.grab();
}

TEST_F(PlayerViewTest, NamesAllThatCanBeUsed) {
    for (const QWidget* widget : view.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_"))
            continue;
        EXPECT_NE(widget->accessibleName(), "") << widget->objectName().toStdString();
        EXPECT_TRUE(widget == &view.Pane() || !widget->toolTip().isEmpty());
    }
}

}  // namespace

}  // namespace kirto::test
