#pragma once

#include <QMenu>
#include <QRubberBand>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

#include "kit/message.h"
#include "ui/controls/editor.h"
#include "ui/controls/frame_selector.h"
#include "ui/controls/picture_painter.h"
#include "ui/controls/shown_document.h"
#include "ui/controls/thumbnail_cache.h"
#include "ui/thumbnails/frame_drag.h"
#include "ui/thumbnails/range_entry.h"
#include "ui/thumbnails/thumb_scroll_view.h"
#include "ui/thumbnails/thumbnail_layout.h"

class QHelpEvent;

// The grid of thumbnails. Frames can be selected, several of them by Shift, Ctrl or a frame drawn
// around them or by typing their numbers, dragged out as files or to another place, and have a
// context menu; dropped files are sent to the window with the position of the drop. GUI thread.
class ThumbDrawingView : public QWidget {
  public:
    using DragStarter = std::function<void(std::unique_ptr<kirto::FrameDrag> drag,
                                           const QImage& image, BPoint grab)>;

    // Becomes the content of the scroll view, which owns it. shown outlives the view.
    ThumbDrawingView(const kirto::ShownDocument& shown, const kirto::Editor& editor,
                     BMessenger window, kirto::ThumbScrollView* scroll_view);

    // Lays out and paints what is shown now, with the current frame in sight if it is another one.
    void UpdateDisplay();
    // The same without looking for the current frame.
    void ResetDisplay();

    // Pixels, 1 or more.
    void SetThumbnailHeight(int32 height);
    int32 ThumbnailHeight() const { return thumbnail_height_; }
    // The largest height between the two at which all thumbnails are in sight at once; the smaller
    // one if there is none.
    int32 FittingHeight(int32 least, int32 most) const;
    // Whether thumbnails that are high enough have a label at their foot. Not unless told.
    void ShowLabels(bool shown);
    bool ShowsLabels() const { return shows_labels_; }
    // Scrolls to the current frame, if it is not the one that was kept in sight last.
    void KeepCurrentInSight();

    // Handles kThumbnailDrag, B_COPY_TARGET and B_SIMPLE_DATA.
    void MessageReceived(BMessage* message);
    // Drags the current frame out. grab: the pointer's place in its thumbnail.
    void DragToTracker(BPoint grab);
    // Writes the current frame as a Targa file: ref "directory", string "name". Returns false when
    // it was not written; a failure shows an alert, except during a drag.
    bool SaveToTracker(BMessage* message);

    // The current layout of the thumbnails.
    const kirto::ThumbnailLayout& Layout();
    // The frame before which files would be dropped; -1 while no files are dragged over the view.
    int32 DropPosition() const { return drop_position_; }
    // Carries out drags; the desktop's drag and drop unless a test sets it.
    void SetDragStarter(DragStarter starter) { start_drag_ = std::move(starter); }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    static BPoint PointOf(const QPoint& point);
    void MakeMenu();
    void Describe();
    QString MarksOf(int32 index) const;
    void ShowToolTip(const QHelpEvent& event);
    void DrawThumbnails(QPainter& painter, const QRect& area);
    void DrawInvitation(QPainter& painter);
    void DrawSelection(QPainter& painter, int32 index);
    void DrawLabel(QPainter& painter, int32 index);
    void DrawOutline(QPainter& painter, int32 index, const QColor& color);
    void PressOn(int32 index, kirto::FrameSelector::Mode mode, bool left);
    void SelectAt(const QKeyEvent& event, int32 number);
    void SelectAround(const QRect& area, bool added);
    bool MovesFrames(const QDropEvent& event) const;
    void DropOwn(const QDropEvent& event);
    void MoveDropPosition(int32 position);
    void StartDragTimer(BPoint grab);
    QImage DragImage(const Frame& frame);
    std::string NewDragFolder();
    void ReportFailedSave();

    const kirto::ShownDocument& shown_;
    const kirto::Editor editor_;
    const BMessenger window_;
    kirto::ThumbScrollView& scroll_view_;
    int32 thumbnail_height_ = 100;
    bool shows_labels_ = false;
    kirto::ThumbnailLayout layout_;
    kirto::ThumbnailCache cache_;
    int32 drop_position_ = -1;
    int32 kept_in_sight_ = -1;  // the frame that KeepCurrentInSight looked for last
    QMenu menu_;                // what can be done with a frame

    kirto::RangeEntry* range_entry_;
    kirto::FrameSelector selector_;
    QRubberBand band_{QRubberBand::Rectangle, this};
    QPoint band_start_;
    bool alone_on_release_ = false;  // the button went down on one of several selected frames
    bool drag_pending_ = false;      // a thumbnail is held, and its drag has not begun
    int32 held_ = -1;                // the thumbnail that the button went down on last
    BMessage drag_message_;          // what the timer sends
    QTimer drag_timer_;
    DragStarter start_drag_;
    bool dragging_ = false;
    bool save_failed_ = false;  // while dragging
    // The dragged files. Targets may read them long after the drag.
    std::unique_ptr<QTemporaryDir> drag_folder_;
    int32 drag_count_ = 0;
};
