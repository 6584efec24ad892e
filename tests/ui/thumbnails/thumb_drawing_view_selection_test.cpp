// Several frames at a time in the grid of thumbnails.
#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/direct_save.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/thumbnails/thumb_drawing_view.h"

namespace kirto::test {
namespace {

class GridSelection : public ::testing::Test {
  protected:
    void Mouse(QEvent::Type type, QPoint point, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const bool released = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, point, fixture.Grid().mapToGlobal(point), Qt::LeftButton,
                          released ? Qt::NoButton : Qt::LeftButton, modifiers);
        QApplication::sendEvent(&fixture.Grid(), &event);
    }
    void Click(int32 frame, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        Mouse(QEvent::MouseButtonPress, fixture.MiddleOf(frame), modifiers);
        Mouse(QEvent::MouseButtonRelease, fixture.MiddleOf(frame), modifiers);
        CarryOut();
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&fixture.Grid(), &event);
        CarryOut();
    }
    // Carries out what was sent, as the application does.
    void CarryOut() {
        Animation next = *fixture.fixture.document.Current();
        for (const BMessage& message : fixture.application->Messages()) {
            int32 number = next.selected;
            std::string frames;
            message.FindInt32(message.what == kSelectFrame ? "number" : "current", &number);
            if (message.FindString("frames", &frames) == B_OK) {
                SelectFrames(next, ParseFrameSet(frames, next.frames.Size()).value(), number);
            } else {
                SelectFrame(next, number);
            }
        }
        fixture.application->TakeTranscript();
        fixture.fixture.document.Commit(std::move(next));
        fixture.shown.Take(fixture.fixture.document);
        fixture.view->UpdateDisplay();
    }
    std::string Selected() const {
        const Animation& animation = fixture.shown.Current();
        return TextOf(animation.Selection()) + " " + std::to_string(animation.selected);
    }
    // Drops what was dragged out of the grid before the frame.
    void DropOwn(int32 frame, Qt::KeyboardModifiers modifiers) {
        BMessage mark(B_SIMPLE_DATA);
        mark.AddInt32("Kirto", 1);
        const std::vector<uint8> bytes = mark.Flatten();
        QMimeData data;
        data.setData(kDragMessageType, QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                                  static_cast<qsizetype>(bytes.size())));
        const QPoint place = fixture.MiddleOf(frame);
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&fixture.Grid(), &enter);
        bar = fixture.Grid().DropPosition();
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&fixture.Grid(), &drop);
    }

    ThumbnailFixture fixture{SameFrames(9, 100, 100)};
    int32 bar = -2;  // where the last drop would have gone, while it was dragged
};

TEST_F(GridSelection, GrowsWithShiftAndCtrl) {
    Click(2);
    Click(5, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "2-5 5");
    Click(3, Qt::ControlModifier);
    EXPECT_EQ(Selected(), "2,4-5 4");
    Click(7);
    EXPECT_EQ(Selected(), "7 7");
}

TEST_F(GridSelection, GrowsWithShiftAndArrowsHomeAndEnd) {
    Click(3);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "3-5 5");
    Press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "0-3 0");
    Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "3-8 8");
    Press(Qt::Key_Home);
    EXPECT_EQ(Selected(), "0 0");
    Press(Qt::Key_End);
    EXPECT_EQ(Selected(), "8 8");
}

TEST_F(GridSelection, StaysWhileOneOfItsFramesIsHeld) {
    Click(1);
    Click(3, Qt::ShiftModifier);

    Mouse(QEvent::MouseButtonPress, fixture.MiddleOf(2));
    CarryOut();
    EXPECT_EQ(Selected(), "1-3 2");

    Mouse(QEvent::MouseButtonRelease, fixture.MiddleOf(2));
    CarryOut();
    EXPECT_EQ(Selected(), "2 2");
}

TEST_F(GridSelection, IsWhatAFrameIsDrawnAround) {
    const BRect first = fixture.Grid().Layout().At(1);
    const QPoint start(static_cast<int>(first.left) - 2, static_cast<int>(first.top) - 2);
    Mouse(QEvent::MouseButtonPress, start);
    Mouse(QEvent::MouseMove, fixture.MiddleOf(2));
    Mouse(QEvent::MouseButtonRelease, fixture.MiddleOf(2));
    CarryOut();

    EXPECT_EQ(Selected(), "1-2 1");
}

TEST_F(GridSelection, IsToldToThoseWhoCanNotSeeIt) {
    Click(1);
    Click(3, Qt::ShiftModifier);

    EXPECT_TRUE(fixture.Grid().accessibleDescription().endsWith(", 3 selected"));
}

TEST_F(GridSelection, IsPaintedOnAllItsFrames) {
    Click(0);
    const QImage before = fixture.Grid().grab().toImage();
    Click(1, Qt::ShiftModifier);
    const QImage after = fixture.Grid().grab().toImage();

    EXPECT_NE(before.pixel(fixture.MiddleOf(0)), after.pixel(fixture.MiddleOf(0)));
    EXPECT_NE(before.pixel(fixture.MiddleOf(1)), after.pixel(fixture.MiddleOf(1)));
    EXPECT_EQ(before.pixel(fixture.MiddleOf(2)), after.pixel(fixture.MiddleOf(2)));
}

TEST_F(GridSelection, MovesWhenItIsDroppedInTheGrid) {
    Click(1);
    Click(2, Qt::ShiftModifier);

    DropOwn(5, Qt::NoModifier);

    EXPECT_EQ(bar, 5);
    EXPECT_EQ(fixture.window->TakeTranscript(), "awmt");
    DropOwn(5, Qt::ControlModifier);
    EXPECT_EQ(fixture.window->TakeTranscript(), "awct");
}

TEST_F(GridSelection, OfOneFrameMovesWithShiftAndOtherwiseSaysHow) {
    Click(1);

    DropOwn(5, Qt::NoModifier);
    EXPECT_EQ(bar, -1);
    EXPECT_EQ(fixture.window->TakeTranscript(),
              "svup(Status: Shift moves the frame, Ctrl+Shift copies it)");
    DropOwn(5, Qt::ShiftModifier);
    EXPECT_EQ(fixture.window->TakeTranscript(), "awmt");
    DropOwn(5, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(fixture.window->TakeTranscript(), "awct");
}

}  // namespace
}  // namespace kirto::test
