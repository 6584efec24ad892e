#include "ui/timeline/timeline_view.h"

#include <QAccessible>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/colors.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

constexpr int kRow = 60;  // through the blocks

// Ten frames of 100 ms, each 100 units wide, of which the first is current.
class TimelineViewTest : public ::testing::Test {
  protected:
    TimelineViewTest() {
        fixture.document.Change([](Animation& animation) {
            animation.use_pause = true;
            animation.pause_length = 10;
        });
        Open(10);
        view.SetScale(1000);
    }

    void Open(int32 frames) {
        std::vector<FramePointer> all;
        for (int32 i = 0; i < frames; ++i)
            all.push_back(FrameOf(8, 6, kRed));
        ShowFrames(shown, fixture.document, all, 0);
        view.resize(600, view.sizeHint().height());
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        view.UpdateDisplay();
    }
    void Change(const std::function<void(Animation&)>& edit) {
        fixture.document.Change(edit);
        shown.Take(fixture.document);
        view.UpdateDisplay();
    }
    QWidget* Viewport() { return view.viewport(); }
    int MiddleOf(int32 frame) { return view.PlaceOf(frame).center().x(); }
    int EdgeOf(int32 frame) { return view.PlaceOf(frame).right(); }
    void Press(int x, int y = kRow, Qt::KeyboardModifiers keys = {}) {
        QTest::mousePress(Viewport(), Qt::LeftButton, keys, {x, y});
    }
    void Move(int x, int y = kRow) {
        const QPointF to(x, y);
        QMouseEvent move(QEvent::MouseMove, to, Viewport()->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Viewport(), &move);
    }
    void Release(int x, int y = kRow, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseRelease(Viewport(), Qt::LeftButton, keys, {x, y});
    }
    std::string Posted() { return port->TakeTranscript(); }
    BMessage Last() { return port->Messages().back(); }
    static std::string Text(const BMessage& message, const char* field) {
        std::string text;
        EXPECT_EQ(message.FindString(field, &text), B_OK);
        return text;
    }

    DocumentFixture fixture;
    ShownDocument shown;
    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    TimelineView view{shown, BMessenger(port)};
};

TEST_F(TimelineViewTest, HasABlockAFrameByItsTime) {
    EXPECT_EQ(view.FrameCount(), 10);
    EXPECT_EQ(view.PlaceOf(3).width(), 100);
    Change([](Animation& animation) {
        EditFrame(animation, 3, [](Frame& frame) {
            frame.use_pause = true;
            frame.pause_length = 25;
        });
    });
    EXPECT_EQ(view.PlaceOf(3).width(), 250);
    EXPECT_EQ(view.NameOf(3), "Frame 3, 0.25 s");
}

TEST_F(TimelineViewTest, ShowsThePictureInABlockThatHasRoom) {
    const auto shows = [this](int32 frame) {
        const QPoint inside = view.PlaceOf(frame).topLeft() + QPoint(20, 20);
        return WaitFor([&] { return Viewport()->grab().toImage().pixel(inside) == kRed; });
    };
    EXPECT_TRUE(shows(1));
    view.SetScale(100);
    const QImage narrow = Viewport()->grab().toImage();
    EXPECT_NE(narrow.pixel(view.PlaceOf(1).topLeft() + QPoint(5, 20)), kRed);
}

TEST_F(TimelineViewTest, FollowsThePlayheadToFramesThatAreGoneWhileItIsHidden) {
    view.hide();
    Change([](Animation& animation) {
        while (animation.frames.Size() > 2)
            animation.frames.Remove(2);
    });
    view.SetPlayhead(9);
    EXPECT_GT(view.horizontalScrollBar()->value(), 0);

    view.show();
    EXPECT_EQ(view.FrameCount(), 2);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

TEST_F(TimelineViewTest, SelectsByClicksAndKeys) {
    QTest::mouseClick(Viewport(), Qt::LeftButton, {}, {MiddleOf(2), kRow});
    EXPECT_EQ(Last().what, kSelectFrame);
    Change([](Animation& animation) { animation.selected = 2; });
    QTest::mouseClick(Viewport(), Qt::LeftButton, Qt::ShiftModifier, {MiddleOf(4), kRow});
    EXPECT_EQ(Text(Last(), "frames"), "2-4");
    QTest::mouseClick(Viewport(), Qt::LeftButton, Qt::ControlModifier, {MiddleOf(0), kRow});
    EXPECT_EQ(Text(Last(), "frames"), "0,2");
    QTest::keyClick(&view, Qt::Key_End);
    int32 number = -1;
    EXPECT_EQ(Last().FindInt32("number", &number), B_OK);
    EXPECT_EQ(number, 9);
    Posted();
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_EQ(Posted(), CodeText(kRemoveFrame));
}

TEST_F(TimelineViewTest, MovesTheSelectedFramesByDragging) {
    Press(MiddleOf(1));
    Move(MiddleOf(1) + 200);
    Release(EdgeOf(3) - 10);
    EXPECT_EQ(Posted(), "aslt awmt");
    Press(MiddleOf(1));
    Move(MiddleOf(1) + 50);
    Move(EdgeOf(3) - 10);
    Release(EdgeOf(3) - 10, kRow, Qt::ControlModifier);
    int32 position = -1;
    EXPECT_EQ(Last().what, kCopyFramesTo);
    EXPECT_EQ(Last().FindInt32("position", &position), B_OK);
    EXPECT_EQ(position, 4);
}

TEST_F(TimelineViewTest, KeepsSeveralFramesSelectedWhileTheyAreDragged) {
    Change([](Animation& animation) { SelectFrames(animation, FrameSet::Of(1, 3), 1); });
    Press(MiddleOf(2));
    EXPECT_EQ(Text(Last(), "frames"), "1-3");
    Move(MiddleOf(5));
    Release(MiddleOf(5));
    EXPECT_EQ(Posted(), "aslm awmt");

    Press(MiddleOf(2));
    Release(MiddleOf(2));
    EXPECT_EQ(Posted(), "aslm aslt") << "a click selects it alone";
}

TEST_F(TimelineViewTest, ChangesAPauseByDraggingAnEdgeInHundredths) {
    Press(EdgeOf(1));
    Move(EdgeOf(1) + 53);
    EXPECT_EQ(view.NameOf(1), "Frame 1, 0.15 s") << "as long as it is dragged";
    EXPECT_EQ(Posted(), "");
    Release(EdgeOf(1));

    ASSERT_EQ(Last().what, kSetPauses);
    EXPECT_EQ(Text(Last(), "pause"), "15.00");
    EXPECT_EQ(Text(Last(), "frames"), "1");
    EXPECT_EQ(view.NameOf(1), "Frame 1, 0.10 s") << "until the document has changed";
    EXPECT_EQ(Posted(), CodeText(kSetPauses)) << "one step";
}

TEST_F(TimelineViewTest, CountsInSecondsWherePausesDo) {
    fixture.prefs.global_pauseinseconds = true;
    fixture.document.PublishSettings();
    Change([](Animation& animation) { animation.pause_length = 0.1; });
    Press(EdgeOf(0));
    Move(EdgeOf(0) - 30);
    Release(EdgeOf(0));
    EXPECT_EQ(Text(Last(), "pause"), "0.07");
}

TEST_F(TimelineViewTest, PutsNothingOffWhereAnEdgeIsOnlyClicked) {
    Press(EdgeOf(1));
    Release(EdgeOf(1));
    EXPECT_EQ(Posted(), "");
}

TEST_F(TimelineViewTest, ForgetsADragOnEscape) {
    Press(EdgeOf(1));
    Move(EdgeOf(1) + 50);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(view.NameOf(1), "Frame 1, 0.10 s");
    Release(EdgeOf(1) + 50);
    EXPECT_EQ(Posted(), "");
}

TEST_F(TimelineViewTest, LetsThePlayheadBeDraggedInTheRuler) {
    std::vector<std::pair<int32, bool>> dragged;
    view.WhenDragged([&](int32 frame, bool last) { dragged.emplace_back(frame, last); });
    Press(MiddleOf(1), 5);
    Move(MiddleOf(3), 5);
    Release(MiddleOf(4), 5);
    using Dragged = std::vector<std::pair<int32, bool>>;
    EXPECT_EQ(dragged, (Dragged{{1, false}, {3, false}, {4, true}}));
    EXPECT_EQ(Posted(), "");
}

TEST_F(TimelineViewTest, BringsThePlayheadIntoSight) {
    view.SetPlayhead(9);
    EXPECT_TRUE(Viewport()->rect().contains(view.PlaceOf(9)));
    view.SetPlayhead(0);
    EXPECT_TRUE(Viewport()->rect().contains(view.PlaceOf(0)));
}

TEST_F(TimelineViewTest, ZoomsAboutThePointer) {
    view.horizontalScrollBar()->setValue(150);
    const int before = MiddleOf(3);
    view.SetScale(2000, before);
    EXPECT_NEAR(MiddleOf(3), before, 3);
    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_EQ(view.Scale(), 1600);
}

TEST_F(TimelineViewTest, TellsScreenReadersOfTheBlocksInSightAndTheCurrentOne) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    view.horizontalScrollBar()->setValue(0);
    const int32 last = view.FramesInSight().second;
    ASSERT_EQ(list->childCount(), last);
    QAccessibleInterface* block = list->child(2);
    EXPECT_EQ(block->text(QAccessible::Name), "Frame 2, 0.10 s");
    EXPECT_EQ(block->parent(), list);
    EXPECT_EQ(list->indexOfChild(block), 2);
    EXPECT_FALSE(block->state().selected);
    EXPECT_TRUE(list->child(0)->state().selected);
    const QPoint middle = block->rect().center();
    EXPECT_EQ(list->childAt(middle.x(), middle.y()), block);
    block->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Posted(), "aslt");

    Change([](Animation& animation) { animation.frames.Remove(9); });
    view.horizontalScrollBar()->setValue(400);
    EXPECT_EQ(list->child(0)->text(QAccessible::Name), "Frame 0, 0.10 s") << "the current one";
    EXPECT_TRUE(list->child(0)->state().offscreen);
    EXPECT_EQ(list->child(99), nullptr);
}

TEST_F(TimelineViewTest, HasNothingToHitWithoutFrames) {
    Open(0);
    Press(50);
    Move(80);
    Release(90);
    QTest::keyClick(&view, Qt::Key_Right);
    view.SetPlayhead(3);
    Viewport()->grab();
    EXPECT_EQ(Posted(), "");
}

}  // namespace

}  // namespace kirto::test
