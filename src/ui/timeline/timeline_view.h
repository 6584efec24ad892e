#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <optional>

#include "kit/messenger.h"
#include "ui/controls/frame_images.h"
#include "ui/controls/frame_selector.h"
#include "ui/controls/shown_document.h"
#include "ui/timeline/timeline_layout.h"

namespace kirto {

// The frames one after the other, each as wide as it is shown long, below a ruler with the
// playhead. Blocks are selected and dragged to another place, their right edges are dragged to
// change the pause; all of it is posted as commands. Only what is in sight is painted. GUI thread.
class TimelineView : public QAbstractScrollArea {
  public:
    static constexpr double kLeastScale = 1;  // units for a second
    static constexpr double kMostScale = 20000;

    // commands: where frames are selected and edited. shown outlives the view.
    TimelineView(const ShownDocument& shown, BMessenger commands, QWidget* parent = nullptr);

    // Shows what is shown now, with the current frame in sight if it is another one.
    void UpdateDisplay();
    // The frame that is played or shown; -1 for none. It is brought into sight.
    void SetPlayhead(int32 frame);
    // Units for a second; what is in the middle stays there, or what is at that place.
    void SetScale(double scale, std::optional<int> x = std::nullopt);
    double Scale() const { return scale_; }
    // Of the ruler above the blocks, units.
    int RulerHeight() const;

    // Called while the playhead is dragged, and with the last when it is let go.
    void WhenDragged(std::function<void(int32 frame, bool last)> dragged) {
        dragged_ = std::move(dragged);
    }

    // For those who can't see it. frame: 0 to FrameCount() - 1.
    int32 FrameCount() const { return layout_.Count(); }
    // In the viewport, whether it is in sight or not.
    QRect PlaceOf(int32 frame) const;
    // "Frame 3, 0.10 s".
    QString NameOf(int32 frame) const;
    bool IsSelected(int32 frame) const;
    int32 CurrentFrame() const { return shown_.Selected(); }
    // [first, second)
    std::pair<int32, int32> FramesInSight() const;
    void Select(int32 frame, FrameSelector::Mode mode = FrameSelector::Mode::kAlone);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    enum class Drag { kNone, kPlayhead, kEdge, kPressed, kBlocks };

    void LayOut();
    void FindFirstScale();
    void BringIntoSight(int32 frame);
    void WantThumbnails();
    std::optional<FrameImages::Wanted> ThumbnailOf(int32 frame) const;
    double AtContent(int x) const;
    int InViewport(double x) const;
    void PaintBlock(QPainter& painter, int32 frame);
    void PaintThumbnail(QPainter& painter, int32 frame, const QRect& block);
    void PaintRuler(QPainter& painter, const QRect& area);
    void PaintPlayhead(QPainter& painter);
    void PaintDragging(QPainter& painter);
    void UpdatePlayhead();
    QRect PlayheadPlace() const;
    void BeginDrag(int32 frame, const QMouseEvent& event);
    void DragPlayhead(int x, bool last);
    void DragEdge(int x);
    void DropEdge();
    void DropBlocks(bool copies);
    void EndDrag();
    double UnitsPerSecond() const;

    const ShownDocument& shown_;
    const BMessenger commands_;
    std::function<void(int32, bool)> dragged_;
    TimelineLayout layout_;
    FrameImages thumbnails_;
    FrameSelector selector_;
    double scale_ = 0;  // 0 until there are frames
    int32 playhead_ = -1;
    int32 kept_in_sight_ = -1;

    Drag drag_ = Drag::kNone;
    QPoint pressed_at_;
    QPoint pointer_;
    int32 held_ = -1;                // the frame whose block or edge the button went down on
    bool alone_on_release_ = false;  // it is one of several selected frames
    int32 drop_position_ = -1;
    TimelineLayout::Pause pause_;  // that an edge is dragged to
};

}  // namespace kirto
