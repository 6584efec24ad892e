#include "ui/thumbnails/thumb_drawing_view.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainterPath>
#include <QToolTip>

#include "base/text.h"
#include "kit/qt/ui_text.h"
#include "ui/thumbnails/frame_label.h"

BPoint ThumbDrawingView::PointOf(const QPoint& point) {
    return {static_cast<float>(point.x()), static_cast<float>(point.y())};
}

ThumbDrawingView::ThumbDrawingView(const kirto::ShownDocument& shown, const kirto::Editor& editor,
                                   BMessenger window, kirto::ThumbScrollView* scroll_view)
    : QWidget(scroll_view->viewport()),
      shown_(shown),
      editor_(editor),
      window_(std::move(window)),
      scroll_view_(*scroll_view),
      range_entry_(new kirto::RangeEntry(shown, editor.application, this)),
      start_drag_([this](std::unique_ptr<kirto::FrameDrag> drag, const QImage& image, BPoint grab) {
          kirto::RunFrameDrag(this, std::move(drag), image, grab);
      }) {
    setObjectName("ThumbDrawingView");
    setAccessibleName(UiText::tr("Thumbnails"));
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    drag_timer_.setSingleShot(true);
    connect(&drag_timer_, &QTimer::timeout, this, [this] { MessageReceived(&drag_message_); });
    MakeMenu();
    scroll_view->SetContent(this);
    UpdateDisplay();
}

const kirto::ThumbnailLayout& ThumbDrawingView::Layout() {
    layout_.Update(shown_.Frames(), thumbnail_height_, static_cast<float>(width() - 1));
    return layout_;
}

void ThumbDrawingView::ResetDisplay() {
    scroll_view_.SetContentHeight(Layout().ContentHeight());
    Describe();
    update();
}

void ThumbDrawingView::UpdateDisplay() {
    ResetDisplay();
    KeepCurrentInSight();
}

void ThumbDrawingView::SetThumbnailHeight(int32 height) {
    if (height == thumbnail_height_) return;
    thumbnail_height_ = height;
    ResetDisplay();
}

int32 ThumbDrawingView::FittingHeight(int32 least, int32 most) const {
    return kirto::ThumbnailLayout::FittingHeight(shown_.Frames(), static_cast<float>(width() - 1),
                                                 scroll_view_.viewport()->height(), least, most);
}

void ThumbDrawingView::ShowLabels(bool shown) {
    shows_labels_ = shown;
    update();
}

void ThumbDrawingView::KeepCurrentInSight() {
    if (shown_.Selected() == kept_in_sight_) return;
    kept_in_sight_ = shown_.Selected();
    if (!shown_.CurrentFrame()) return;
    constexpr int32 kMargin = 5;
    const BRect current = Layout().At(shown_.Selected());
    const int32 view_top = scroll_view_.Top();
    const int32 view_height = scroll_view_.ViewHeight();
    const auto top = static_cast<int32>(current.top);
    const auto bottom = static_cast<int32>(current.bottom);
    if (top < view_top) {
        scroll_view_.ScrollTo(top - kMargin);
    } else if (bottom > view_top + view_height) {
        scroll_view_.ScrollTo(bottom + kMargin - view_height);
    }
}

// For those who can't see which thumbnail has the line around it.
void ThumbDrawingView::Describe() {
    const kirto::FramePointer frame = shown_.CurrentFrame();
    QString description = UiText::tr("no frames");
    if (frame) {
        description =
            UiText::tr("frame #%1 %2, %3 x %4, %5 frame(s)")
                .arg(QString("%1").arg(shown_.Selected(), 4, 10, QChar('0')),
                     QString::fromStdString(frame->name), QString::number(frame->width),
                     QString::number(frame->height), QString::number(shown_.FrameCount()));
        const QString marks = MarksOf(shown_.Selected());
        if (!marks.isEmpty()) description += ", " + marks;
    }
    const int32 several = shown_.Current().several.Count();
    if (several > 0) description += UiText::tr(", %1 selected").arg(several);
    if (accessibleDescription() != description) setAccessibleDescription(description);
}

bool ThumbDrawingView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    ShowToolTip(*static_cast<QHelpEvent*>(event));
    return true;
}

QString ThumbDrawingView::MarksOf(int32 index) const {
    const bool in_seconds = shown_.Settings().global_pauseinseconds;
    return kirto::FrameLabel::Of(shown_.Current(), index, in_seconds).Marks();
}

void ThumbDrawingView::ShowToolTip(const QHelpEvent& event) {
    const int32 index = Layout().HitTest(PointOf(event.pos()));
    if (index < 0) {
        QToolTip::hideText();
        return;
    }
    const Frame& frame = *shown_.Frames().At(index);
    QString text =
        UiText::tr("frame #%1    %2\n%3 x %4")
            .arg(QString("%1").arg(index, 4, 10, QChar('0')), QString::fromStdString(frame.name),
                 QString::number(frame.width), QString::number(frame.height));
    const QString marks = MarksOf(index);
    if (!marks.isEmpty()) text += "\n" + marks;
    // Escaped, as a name may look like markup.
    QToolTip::showText(event.globalPos(),
                       "<div style='white-space: pre'>" + text.toHtmlEscaped() + "</div>", this);
}

void ThumbDrawingView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    scroll_view_.SetContentHeight(Layout().ContentHeight());
}

// What happened to a hidden view's size and selection is made up for.
void ThumbDrawingView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    kept_in_sight_ = -1;
    UpdateDisplay();
}

void ThumbDrawingView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    DrawThumbnails(painter, event->rect());
    if (shown_.Frames().Empty()) DrawInvitation(painter);
    if (drop_position_ < 0) return;
    const QRectF bar = kirto::OnPixels(Layout().DropBar(drop_position_), devicePixelRatioF());
    painter.fillRect(bar, palette().highlight());
}

void ThumbDrawingView::DrawThumbnails(QPainter& painter, const QRect& area) {
    const kirto::ThumbnailLayout& layout = Layout();
    kirto::PicturePainter pictures(painter, palette(), shown_.Settings().thumbnail_drawtransparent,
                                   cache_);
    const auto [first, last] =
        layout.Between(static_cast<float>(area.top()), static_cast<float>(area.bottom()));
    for (int32 i = first; i < last; ++i) {
        pictures.Draw(shown_.Frames().At(i)->bitmap, layout.At(i));
        if (shows_labels_) DrawLabel(painter, i);
        if (drop_position_ < 0) DrawSelection(painter, i);
    }
    if (pictures.WasCoarse()) update();
}

// An empty grid tells how to fill it.
void ThumbDrawingView::DrawInvitation(QPainter& painter) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(
        rect(), Qt::AlignCenter | Qt::TextWordWrap,
        UiText::tr("Drop images or an animation here,\nor choose Insert...\nfrom the Frame menu."));
}

// The current frame has a line around it. Where several are selected all of them are tinted, and
// the others have a lighter line.
void ThumbDrawingView::DrawSelection(QPainter& painter, int32 index) {
    constexpr qreal kTint = 0.25;
    constexpr qreal kLighter = 0.5;
    const kirto::FrameSet& several = shown_.Current().several;
    QColor color = palette().color(QPalette::Highlight);
    if (index == shown_.Selected()) DrawOutline(painter, index, color);
    if (!several.Contains(index)) return;
    color.setAlphaF(kLighter);
    if (index != shown_.Selected()) DrawOutline(painter, index, color);
    color.setAlphaF(kTint);
    painter.fillRect(kirto::OnPixels(layout_.At(index), devicePixelRatioF()), color);
}

void ThumbDrawingView::DrawLabel(QPainter& painter, int32 index) {
    const bool in_seconds = shown_.Settings().global_pauseinseconds;
    kirto::FrameLabel::Of(shown_.Current(), index, in_seconds)
        .Paint(painter, kirto::OnPixels(layout_.At(index), devicePixelRatioF()), palette());
}

void ThumbDrawingView::DrawOutline(QPainter& painter, int32 index, const QColor& color) {
    constexpr int kPenSize = 2;
    BRect outline = layout_.OutlineAt(index);
    outline.right += kPenSize - 1;
    outline.bottom += kPenSize - 1;
    const QRectF outside = kirto::OnPixels(outline, devicePixelRatioF());
    QPainterPath line;
    line.addRect(outside);
    line.addRect(outside.adjusted(kPenSize, kPenSize, -kPenSize, -kPenSize));
    painter.fillPath(line, color);
}
