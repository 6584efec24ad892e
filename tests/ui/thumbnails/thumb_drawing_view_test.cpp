#include "ui/thumbnails/thumb_drawing_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {
namespace {

void Mouse(QWidget& widget, QEvent::Type type, QPoint point,
           Qt::MouseButton button = Qt::LeftButton) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&widget, &event);
}

QMenu* OpenMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

void AskForMenu(QWidget& widget, QContextMenuEvent::Reason reason, QPoint point) {
    QContextMenuEvent event(reason, point, widget.mapToGlobal(point));
    QApplication::sendEvent(&widget, &event);
}

bool InSight(ThumbnailFixture& fixture, int32 index) {
    const BRect area = fixture.Grid().Layout().At(index);
    const auto top = static_cast<float>(fixture.Scroll().Top());
    const auto height = static_cast<float>(fixture.Scroll().ViewHeight());
    return area.top >= top && area.bottom <= top + height;
}

TEST(ThumbDrawingView, SelectsTheFrameThatIsClicked) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100));
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, fixture.MiddleOf(3));
    EXPECT_EQ(fixture.TakeSelected(), std::vector<int32>{3});
    EXPECT_EQ(fixture.window->Transcript(), "");
}

TEST(ThumbDrawingView, SelectsNothingAndDragsNothingWhenAGapIsClicked) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100));
    int drags = 0;
    fixture.Grid().SetDragStarter([&](auto&&...) { ++drags; });
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, {106, 50});
    BMessage held(kThumbnailDrag);
    held.AddPoint("point", {1, 1});
    fixture.Grid().MessageReceived(&held);
    EXPECT_TRUE(fixture.TakeSelected().empty());
    EXPECT_EQ(drags, 0);
}

TEST(ThumbDrawingView, OnlySelectsWhenTheButtonIsLetGoEarly) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100));
    int drags = 0;
    fixture.Grid().SetDragStarter([&](auto&&...) { ++drags; });
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, fixture.MiddleOf(0));
    Mouse(fixture.Grid(), QEvent::MouseButtonRelease, fixture.MiddleOf(0));
    BMessage held(kThumbnailDrag);
    held.AddPoint("point", {1, 1});
    fixture.Grid().MessageReceived(&held);
    EXPECT_EQ(fixture.TakeSelected(), std::vector<int32>{0});
    EXPECT_EQ(drags, 0);
}

TEST(ThumbDrawingView, DragsTheCurrentFrameWhenTheButtonIsHeld) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100));
    BPoint grabbed;
    int drags = 0;
    fixture.Grid().SetDragStarter([&](auto&&, const QImage&, BPoint grab) {
        grabbed = grab;
        ++drags;
    });
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, QPoint(14, 25));
    while (drags == 0)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
    EXPECT_EQ(grabbed, BPoint(10, 20));
    BMessage again(kThumbnailDrag);
    again.AddPoint("point", {1, 1});
    fixture.Grid().MessageReceived(&again);
    EXPECT_EQ(drags, 1);
}

TEST(ThumbDrawingView, WaitsForTheHeldFrameToBecomeCurrentBeforeItIsDragged) {
    ThumbnailFixture fixture(SameFrames(2, 100, 100));
    int drags = 0;
    fixture.Grid().SetDragStarter([&](auto&&...) { ++drags; });
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, fixture.MiddleOf(1));
    BMessage held(kThumbnailDrag);
    held.AddPoint("point", {1, 1});
    fixture.Grid().MessageReceived(&held);
    EXPECT_EQ(drags, 0);

    fixture.Select(1);
    fixture.Grid().MessageReceived(&held);
    EXPECT_EQ(drags, 1);
}

TEST(ThumbDrawingView, DoesNotDragWithTheSecondaryButton) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100));
    int drags = 0;
    fixture.Grid().SetDragStarter([&](auto&&...) { ++drags; });
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, fixture.MiddleOf(2), Qt::RightButton);
    BMessage held(kThumbnailDrag);
    held.AddPoint("point", {1, 1});
    fixture.Grid().MessageReceived(&held);
    EXPECT_EQ(fixture.TakeSelected(), std::vector<int32>{2});
    EXPECT_EQ(drags, 0);
}

TEST(ThumbDrawingView, OffersWhatCanBeDoneWithAFrame) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100));
    AskForMenu(fixture.Grid(), QContextMenuEvent::Mouse, {106, 50});
    EXPECT_EQ(OpenMenu(), nullptr);
    AskForMenu(fixture.Grid(), QContextMenuEvent::Mouse, fixture.MiddleOf(1));
    QMenu* menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "ModifyFrame");
    QStringList labels;
    for (QAction* action : menu->actions()) {
        labels.append(action->text());
        action->trigger();
    }
    menu->close();
    EXPECT_EQ(labels, (QStringList{"Insert Frame", "Remove Frame", "Move Up", "Move Down",
                                   "Fade Effects...", "", "Cut", "Copy", "Paste", "Duplicate",
                                   "Set Pause..."}));
    EXPECT_EQ(fixture.window->Transcript(), "awfi awfr awfu awfd awfe wcut wcpy wpst awdu wspa");
}

TEST(ThumbDrawingView, OffersTheMenuOfTheCurrentFrameToTheKeyboard) {
    ThumbnailFixture fixture(SameFrames(5, 100, 100), 2);
    AskForMenu(fixture.Grid(), QContextMenuEvent::Keyboard, {0, 0});
    ASSERT_NE(OpenMenu(), nullptr);
    EXPECT_EQ(OpenMenu()->pos(), fixture.Grid().mapToGlobal(fixture.MiddleOf(2)));
    OpenMenu()->close();
    ThumbnailFixture empty({});
    AskForMenu(empty.Grid(), QContextMenuEvent::Keyboard, {0, 0});
    EXPECT_EQ(OpenMenu(), nullptr);
}

TEST(ThumbDrawingView, MovesTheSelectionWithArrowKeysPastAnyBound) {
    ThumbnailFixture fixture(SameFrames(3, 100, 100), 0);
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down})
        Press(fixture.Grid(), key);
    EXPECT_EQ(fixture.TakeSelected(), (std::vector<int32>{-1, -1, 1, 1}));
    fixture.Select(2);
    Press(fixture.Grid(), Qt::Key_Right);
    EXPECT_EQ(fixture.TakeSelected(), std::vector<int32>{3});
}

TEST(ThumbDrawingView, MovesNoSelectionWithoutFrames) {
    ThumbnailFixture fixture({});
    for (const int key : {Qt::Key_Left, Qt::Key_Right})
        Press(fixture.Grid(), key);
    EXPECT_TRUE(fixture.TakeSelected().empty());
}

TEST(ThumbDrawingView, InsertsAndRemovesWithTheirKeys) {
    ThumbnailFixture fixture(SameFrames(3, 100, 100));
    Press(fixture.Grid(), Qt::Key_Insert);
    Press(fixture.Grid(), Qt::Key_Delete, Qt::KeypadModifier);
    Press(fixture.Grid(), Qt::Key_Delete, Qt::ControlModifier);
    Press(fixture.Grid(), Qt::Key_A);
    EXPECT_EQ(fixture.window->Transcript(), "awfi awfr");
}

TEST(ThumbDrawingView, ScrollsByAViewWithPageKeysWithinTheRange) {
    ThumbnailFixture fixture(SameFrames(60, 100, 100));
    Press(fixture.Grid(), Qt::Key_PageDown);
    EXPECT_EQ(fixture.Scroll().Top(), fixture.Scroll().ViewHeight());
    Press(fixture.Grid(), Qt::Key_PageUp);
    Press(fixture.Grid(), Qt::Key_PageUp);
    EXPECT_EQ(fixture.Scroll().Top(), 0);
    for (int i = 0; i < 50; ++i)
        Press(fixture.Grid(), Qt::Key_PageDown);
    EXPECT_EQ(fixture.Scroll().Top(), fixture.Scroll().verticalScrollBar()->maximum());
}

TEST(ThumbDrawingView, HasAScrollRangeThatEndsAGapBelowTheLastRow) {
    ThumbnailFixture fixture(SameFrames(60, 100, 100));
    const QScrollBar* bar = fixture.Scroll().verticalScrollBar();
    const auto last_bottom = static_cast<int32>(fixture.Grid().Layout().At(59).bottom);
    EXPECT_EQ(bar->maximum(), last_bottom + 5 - fixture.Scroll().ViewHeight());
    EXPECT_EQ(bar->singleStep(), 8);
    EXPECT_EQ(bar->pageStep(), 64);
    EXPECT_FALSE(fixture.Scroll().horizontalScrollBar()->isVisible());
    fixture.Show({});
    EXPECT_EQ(bar->maximum(), 0);
}

TEST(ThumbDrawingView, HasAScrollBarOnlyWhileThereAreFrames) {
    ThumbnailFixture fixture(SameFrames(1, 100, 100));
    const QScrollBar* bar = fixture.Scroll().verticalScrollBar();
    HandleEvents();
    EXPECT_TRUE(bar->isVisible());
    fixture.Show({});
    HandleEvents();
    EXPECT_FALSE(bar->isVisible());
    fixture.Show(SameFrames(1, 100, 100));
    HandleEvents();
    EXPECT_TRUE(bar->isVisible());
}

TEST(ThumbDrawingView, FollowsTheWidthWithItsRows) {
    ThumbnailFixture fixture(SameFrames(60, 100, 100));
    const int before = fixture.Scroll().verticalScrollBar()->maximum();
    fixture.view->resize(800, 400);
    HandleEvents();
    EXPECT_LT(fixture.Scroll().verticalScrollBar()->maximum(), before);
}

TEST(ThumbDrawingView, KeepsTheCurrentFrameInSightWithAMargin) {
    ThumbnailFixture fixture(SameFrames(60, 100, 100));
    fixture.Select(30);
    const auto bottom = static_cast<int32>(fixture.Grid().Layout().At(30).bottom);
    EXPECT_EQ(fixture.Scroll().Top() + fixture.Scroll().ViewHeight(), bottom + 5);
    const int32 top = fixture.Scroll().Top();
    fixture.Select(29);
    EXPECT_EQ(fixture.Scroll().Top(), top);
    fixture.Select(3);
    const auto third_top = static_cast<int32>(fixture.Grid().Layout().At(3).top);
    EXPECT_EQ(fixture.Scroll().Top(), third_top - 5);
    fixture.Select(59);
    EXPECT_EQ(fixture.Scroll().Top(), fixture.Scroll().verticalScrollBar()->maximum());
}

TEST(ThumbDrawingView, LeavesTheUserAloneWhileTheCurrentFrameStaysTheSame) {
    ThumbnailFixture fixture(SameFrames(60, 100, 100));
    fixture.Select(30);
    fixture.Scroll().ScrollTo(0);
    fixture.view->UpdateDisplay();
    EXPECT_EQ(fixture.Scroll().Top(), 0);
    fixture.Select(31);
    fixture.Scroll().ScrollTo(0);
    fixture.fixture.document.Select(32);
    fixture.shown.Take(fixture.fixture.document);
    fixture.view->ResetDisplay();
    EXPECT_EQ(fixture.Scroll().Top(), 0);
}

TEST(ThumbDrawingView, HasTheCurrentFrameInSightWhenItAppears) {
    ThumbnailFixture fixture(SameFrames(60, 100, 100));
    fixture.view->hide();
    fixture.Select(50);
    fixture.view->resize(300, 300);
    fixture.view->show();
    HandleEvents();
    EXPECT_TRUE(InSight(fixture, 50));
}

TEST(ThumbDrawingView, DrawsTheCurrentFrameWithALineInTheSelectionColour) {
    ThumbnailFixture fixture({FrameOf(100, 100, 0xFFFF0000), FrameOf(100, 100, 0xFF00FF00)}, 1);
    const QImage image = fixture.Grid().grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRgb base = fixture.Grid().palette().color(QPalette::Base).rgb();
    const QRgb line = fixture.Grid().palette().color(QPalette::Highlight).rgb();
    EXPECT_EQ(image.pixel(4, 5), 0xFFFF0000u);
    EXPECT_EQ(image.pixel(103, 104), 0xFFFF0000u);
    EXPECT_EQ(image.pixel(3, 5), base);
    EXPECT_EQ(image.pixel(106, 50), base);
    EXPECT_EQ(image.pixel(107, 50), line);
    EXPECT_EQ(image.pixel(108, 50), line);
    EXPECT_EQ(image.pixel(109, 50), 0xFF00FF00u);
    EXPECT_EQ(image.pixel(208, 50), 0xFF00FF00u);
    EXPECT_EQ(image.pixel(209, 50), line);
    EXPECT_EQ(image.pixel(210, 50), line);
    EXPECT_EQ(image.pixel(211, 50), base);
    EXPECT_EQ(image.pixel(150, 3), line);
    EXPECT_EQ(image.pixel(150, 2), base);
    EXPECT_EQ(image.pixel(150, 106), line);
    EXPECT_EQ(image.pixel(150, 107), base);
}

TEST(ThumbDrawingView, DrawsFramesPastTheThousandthButDoesNotHitThem) {
    std::vector<FramePointer> frames = SameFrames(1001, 100, 100);
    frames.back() = FrameOf(100, 100, 0xFFFF0000);
    ThumbnailFixture fixture(frames);
    fixture.Scroll().ScrollTo(1 << 24);
    const QPoint middle = fixture.MiddleOf(1000);
    const QImage image = fixture.Scroll().viewport()->grab().toImage();
    EXPECT_EQ(image.pixel(middle - QPoint(0, fixture.Scroll().Top())), 0xFFFF0000u);
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, middle);
    EXPECT_TRUE(fixture.TakeSelected().empty());
}

TEST(ThumbDrawingView, DrawsWholePixelsOnFineScreens) {
    ThumbnailFixture fixture(SameFrames(3, 101, 77));
    QImage canvas(fixture.Grid().size() * 2, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(2);
    canvas.fill(0);
    fixture.Grid().render(&canvas);
    const qreal right = 2 * (4 + 101 * 100 / 77.0);
    EXPECT_EQ(canvas.pixel(8, 10), 0xFF336699u);
    EXPECT_EQ(canvas.pixel(qRound(right) - 1, 100), 0xFF336699u);
    EXPECT_NE(canvas.pixel(qRound(right), 100), 0xFF336699u);
}

TEST(ThumbDrawingView, TellsThoseWhoCanNotSeeItWhichFrameIsCurrent) {
    ThumbnailFixture fixture(SameFrames(12, 320, 240), 3);
    EXPECT_EQ(fixture.Grid().accessibleName(), "Thumbnails");
    EXPECT_EQ(fixture.Grid().accessibleDescription(), "frame #0003 frame, 320 x 240, 12 frame(s)");
    fixture.Show({});
    EXPECT_EQ(fixture.Grid().accessibleDescription(), "no frames");
}

TEST(ThumbDrawingView, TellsThoseWhoCanNotSeeItThatTheCurrentFrameIsDamaged) {
    auto damaged = std::make_shared<Frame>(*FrameOf(100, 50));
    damaged->damaged = true;
    ThumbnailFixture fixture({damaged, FrameOf(100, 50)});
    EXPECT_EQ(fixture.Grid().accessibleDescription(),
              "frame #0000 frame, 100 x 50, 2 frame(s), damaged, what was good was kept");
    fixture.Select(1);
    EXPECT_EQ(fixture.Grid().accessibleDescription(), "frame #0001 frame, 100 x 50, 2 frame(s)");
}

TEST(ThumbDrawingView, TellsTheNameOfTheFrameBelowThePointer) {
    ThumbnailFixture fixture({FrameOf(100, 50, 0xFF000000, "<b>")});
    const auto ask = [&](QPoint point) {
        QHelpEvent event(QEvent::ToolTip, point, fixture.Grid().mapToGlobal(point));
        QApplication::sendEvent(&fixture.Grid(), &event);
    };
    ask(fixture.MiddleOf(0));
    EXPECT_TRUE(QToolTip::text().contains("frame #0000    &lt;b&gt;\n100 x 50"));
    ask({390, 390});
    QToolTip::hideText();
}

TEST(ThumbDrawingView, TellsWhatTheMarksOfThatFrameMean) {
    auto frame = std::make_shared<Frame>(*FrameOf(100, 50));
    frame->local_palette = true;
    ThumbnailFixture fixture({frame});
    const QPoint point = fixture.MiddleOf(0);
    QHelpEvent event(QEvent::ToolTip, point, fixture.Grid().mapToGlobal(point));
    QApplication::sendEvent(&fixture.Grid(), &event);
    EXPECT_TRUE(QToolTip::text().contains("100 x 50\nown palette"));
    QToolTip::hideText();
}

TEST(ThumbDrawingView, LabelsThumbnailsOnceItIsToldTo) {
    ThumbnailFixture fixture(SameFrames(1, 100, 100));
    const QImage bare = fixture.Grid().grab().toImage();
    fixture.Grid().ShowLabels(true);
    EXPECT_NE(fixture.Grid().grab().toImage(), bare);
    fixture.Grid().ShowLabels(false);
    EXPECT_EQ(fixture.Grid().grab().toImage(), bare);
}

TEST(ThumbDrawingView, TakesTheFocusWhenItIsClicked) {
    ThumbnailFixture fixture(SameFrames(1, 10, 10));
    fixture.view->activateWindow();
    fixture.Grid().clearFocus();
    Mouse(fixture.Grid(), QEvent::MouseButtonPress, {390, 300});
    EXPECT_EQ(fixture.view->focusWidget(), &fixture.Grid());
}

}  // namespace
}  // namespace kirto::test
