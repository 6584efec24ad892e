// The part of the timeline that answers the mouse and the keyboard.
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyleHints>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "document/command_codes.h"
#include "ui/timeline/timeline_view.h"

namespace kirto {

namespace {

constexpr double kEdgeDistance = 4;  // in which an edge can be taken hold of, units
constexpr double kZoomStep = 1.25;
constexpr double kHundredths = 100;  // of a second

}  // namespace

void TimelineView::Select(int32 frame, FrameSelector::Mode mode) {
    if (shown_.CurrentFrame())
        commands_.SendMessage(selector_.Choose(shown_.Current(), frame, mode));
}

void TimelineView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    if (event->button() != Qt::LeftButton || layout_.Count() == 0) return;
    pressed_at_ = pointer_ = event->position().toPoint();
    const double x = AtContent(pointer_.x());
    if (pointer_.y() < RulerHeight()) {
        drag_ = Drag::kPlayhead;
        return DragPlayhead(pointer_.x(), false);
    }
    const int32 edge = layout_.EdgeAt(x, kEdgeDistance);
    if (edge >= 0) {
        drag_ = Drag::kEdge;
        pause_ = {edge, layout_.SecondsOf(edge)};
        return viewport()->update();
    }
    if (x >= 0 && x < layout_.Width()) BeginDrag(layout_.BlockAt(x), *event);
}

// Several frames stay selected when one of them is pressed, to be dragged.
void TimelineView::BeginDrag(int32 frame, const QMouseEvent& event) {
    const Animation& shown = shown_.Current();
    const FrameSelector::Mode mode = FrameSelector::ModeOf(event.modifiers());
    drag_ = Drag::kPressed;
    held_ = frame;
    alone_on_release_ = mode == FrameSelector::Mode::kAlone && shown.several.Contains(frame);
    if (alone_on_release_) {
        commands_.SendMessage(FrameSelector::MakeCurrent(shown, frame));
    } else {
        Select(frame, mode);
    }
}

void TimelineView::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position().toPoint();
    switch (drag_) {
        case Drag::kNone: {
            const bool at_edge = pointer_.y() >= RulerHeight() &&
                                 layout_.EdgeAt(AtContent(pointer_.x()), kEdgeDistance) >= 0;
            viewport()->setCursor(at_edge ? Qt::SplitHCursor : Qt::ArrowCursor);
            return;
        }
        case Drag::kPlayhead:
            return DragPlayhead(pointer_.x(), false);
        case Drag::kEdge:
            return DragEdge(pointer_.x());
        case Drag::kPressed:
            if ((pointer_ - pressed_at_).manhattanLength() <
                QGuiApplication::styleHints()->startDragDistance())
                return;
            drag_ = Drag::kBlocks;
            alone_on_release_ = false;
            break;
        case Drag::kBlocks:
            break;
    }
    // Beyond the edges of what is in sight the frames come to the pointer.
    constexpr int kPace = 24;
    QScrollBar& bar = *horizontalScrollBar();
    if (pointer_.x() < 0) bar.setValue(bar.value() - kPace);
    if (pointer_.x() >= viewport()->width()) bar.setValue(bar.value() + kPace);
    drop_position_ = layout_.DropPosition(AtContent(pointer_.x()));
    viewport()->update();
}

void TimelineView::DragPlayhead(int x, bool last) {
    const int32 frame = layout_.BlockAt(std::max(AtContent(x), 0.0));
    if (dragged_ && frame >= 0) dragged_(frame, last);
}

// Pauses snap to hundredths of a second, as files have them.
void TimelineView::DragEdge(int x) {
    const double width = std::max(AtContent(x) - layout_.LeftOf(pause_.frame), 0.0);
    pause_.seconds = std::round(width / scale_ * kHundredths) / kHundredths;
    LayOut();
    viewport()->update();
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const Drag drag = drag_;
    if (drag == Drag::kPlayhead) DragPlayhead(event->position().toPoint().x(), true);
    if (drag == Drag::kEdge) DropEdge();
    if (drag == Drag::kBlocks) DropBlocks(event->modifiers() & Qt::ControlModifier);
    if (alone_on_release_) Select(held_);
    EndDrag();
}

void TimelineView::DropEdge() {
    if (pointer_ == pressed_at_) return;
    const double units = pause_.seconds * UnitsPerSecond();
    BMessage change(kSetPauses);
    change.AddString("pause", QString::number(units, 'f', 2).toStdString());
    change.AddString("frames", TextOf(FrameSet::Of(pause_.frame, pause_.frame)));
    commands_.SendMessage(change);
}

void TimelineView::DropBlocks(bool copies) {
    BMessage move(copies ? kCopyFramesTo : kMoveFramesTo);
    move.AddInt32("position", drop_position_);
    commands_.SendMessage(move);
}

// Back to what the document says.
void TimelineView::EndDrag() {
    drag_ = Drag::kNone;
    pause_ = {};
    drop_position_ = -1;
    alone_on_release_ = false;
    LayOut();
    viewport()->update();
}

void TimelineView::wheelEvent(QWheelEvent* event) {
    constexpr double kStep = 120;
    const QPoint turned = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier) {
        SetScale(scale_ * std::pow(kZoomStep, turned.y() / kStep), event->position().toPoint().x());
    } else {
        QScrollBar& bar = *horizontalScrollBar();
        const double steps = (turned.y() + turned.x()) / kStep;
        bar.setValue(bar.value() - qRound(steps * bar.singleStep()));
    }
    event->accept();
}

// What is left goes to the player.
void TimelineView::keyPressEvent(QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool extends = modifiers == Qt::ShiftModifier;
    const auto mode = extends ? FrameSelector::Mode::kUpTo : FrameSelector::Mode::kAlone;
    const bool selects = modifiers == Qt::NoModifier || extends;
    switch (selects ? event->key() : 0) {
        case Qt::Key_Left:
            return Select(shown_.Selected() - 1, mode);
        case Qt::Key_Right:
            return Select(shown_.Selected() + 1, mode);
        case Qt::Key_Home:
            return Select(0, mode);
        case Qt::Key_End:
            return Select(shown_.FrameCount() - 1, mode);
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return SetScale(scale_ * kZoomStep);
        case Qt::Key_Minus:
            return SetScale(scale_ / kZoomStep);
        case Qt::Key_Delete:
            commands_.SendMessage(kRemoveFrame);
            return;
        case Qt::Key_Escape:
            if (drag_ != Drag::kNone) return EndDrag();
            break;
        default:
            break;
    }
    event->ignore();  // the scroll area would scroll
}

}  // namespace kirto
