#include "ui/timeline/timeline_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "animation/pauses.h"
#include "kit/qt/ui_text.h"
#include "ui/timeline/timeline_accessible.h"

namespace kirto {

namespace {

constexpr int kBlockHeight = 58;
constexpr int kGap = 2;             // around the blocks, units
constexpr double kFirstWidth = 72;  // of an average block

QString SecondsText(double seconds) {
    return QString("%1 s").arg(seconds, 0, 'f', 2);
}

}  // namespace

TimelineView::TimelineView(const ShownDocument& shown, BMessenger commands, QWidget* parent)
    : QAbstractScrollArea(parent),
      shown_(shown),
      commands_(std::move(commands)),
      thumbnails_([this] { viewport()->update(); }) {
    InstallTimelineAccessibility();
    setObjectName("Timeline");
    setAccessibleName(UiText::tr("Timeline"));
    setToolTip(UiText::tr(
        "Drag a block to move its frame, its right edge to change its pause, the ruler to "
        "go to a frame. Ctrl and the wheel zoom."));
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setMouseTracking(true);
    viewport()->setBackgroundRole(QPalette::Base);
}

int TimelineView::RulerHeight() const {
    return fontMetrics().height() + 3;
}

QSize TimelineView::sizeHint() const {
    return {400, RulerHeight() + kBlockHeight + 2 * frameWidth() +
                     horizontalScrollBar()->sizeHint().height()};
}

QSize TimelineView::minimumSizeHint() const {
    return {120, sizeHint().height()};
}

double TimelineView::UnitsPerSecond() const {
    return PauseUnitsPerSecond(shown_.Settings().global_pauseinseconds);
}

double TimelineView::AtContent(int x) const {
    return x + horizontalScrollBar()->value() - kGap;
}

int TimelineView::InViewport(double x) const {
    return static_cast<int>(x) - horizontalScrollBar()->value() + kGap;
}

QRect TimelineView::PlaceOf(int32 frame) const {
    const int left = InViewport(layout_.LeftOf(frame));
    const int right = InViewport(layout_.RightOf(frame));
    return {left, RulerHeight(), right - left, kBlockHeight - kGap};
}

QString TimelineView::NameOf(int32 frame) const {
    return UiText::tr("Frame %1, %2").arg(frame).arg(SecondsText(layout_.SecondsOf(frame)));
}

bool TimelineView::IsSelected(int32 frame) const {
    return frame == shown_.Selected() || shown_.Current().several.Contains(frame);
}

std::pair<int32, int32> TimelineView::FramesInSight() const {
    return layout_.Between(AtContent(0), AtContent(viewport()->width()));
}

void TimelineView::UpdateDisplay() {
    if (!isVisible()) return;
    if (drag_ == Drag::kEdge && pause_.frame >= shown_.FrameCount()) EndDrag();
    LayOut();
    if (shown_.Selected() != kept_in_sight_) {
        kept_in_sight_ = shown_.Selected();
        BringIntoSight(kept_in_sight_);
    }
    viewport()->update();
}

// So that blocks of an average pause have room for their pictures.
void TimelineView::FindFirstScale() {
    const Animation& animation = shown_.Current();
    const int32 count = animation.frames.Size();
    if (scale_ > 0 || count == 0) return;
    const double seconds = PauseOfAll(animation, FrameSet::AllOf(count)) / UnitsPerSecond() / count;
    constexpr double kShortest = 0.01;
    scale_ = std::clamp(kFirstWidth / std::max(seconds, kShortest), kLeastScale, kMostScale);
}

void TimelineView::LayOut() {
    FindFirstScale();
    layout_.Update(shown_.Current(), UnitsPerSecond(), scale_ > 0 ? scale_ : 1, pause_);
    const int width = viewport()->width();
    const int content = static_cast<int>(layout_.Width()) + 2 * kGap;
    horizontalScrollBar()->setPageStep(width);
    horizontalScrollBar()->setSingleStep(width / 10);
    horizontalScrollBar()->setRange(0, std::max(content - width, 0));
    WantThumbnails();
}

void TimelineView::SetScale(double scale, std::optional<int> x) {
    const int fixed = x.value_or(viewport()->width() / 2);
    const double share = layout_.Width() > 0 ? AtContent(fixed) / layout_.Width() : 0;
    scale_ = std::clamp(scale, kLeastScale, kMostScale);
    LayOut();
    horizontalScrollBar()->setValue(static_cast<int>(share * layout_.Width()) - fixed);
    viewport()->update();
}

// By the page, so that not every frame that is played moves all others.
void TimelineView::BringIntoSight(int32 frame) {
    if (frame < 0 || frame >= layout_.Count()) return;
    const QRect place = PlaceOf(frame);
    QScrollBar& bar = *horizontalScrollBar();
    const bool in_sight = place.left() >= 0 && place.right() < viewport()->width();
    if (!in_sight) bar.setValue(bar.value() + place.left() - kGap);
}

void TimelineView::SetPlayhead(int32 frame) {
    if (frame == playhead_) return;
    UpdatePlayhead();
    playhead_ = frame;
    if (drag_ == Drag::kNone) BringIntoSight(frame);
    UpdatePlayhead();
}

QRect TimelineView::PlayheadPlace() const {
    constexpr int kHalf = 6;
    if (playhead_ < 0 || playhead_ >= layout_.Count()) return {};
    const int x = InViewport(layout_.LeftOf(playhead_));
    return {x - kHalf, 0, 2 * kHalf + 1, viewport()->height()};
}

void TimelineView::UpdatePlayhead() {
    viewport()->update(PlayheadPlace());
}

// Where a block has room for all of it.
std::optional<FrameImages::Wanted> TimelineView::ThumbnailOf(int32 frame) const {
    const std::shared_ptr<const Picture>& picture = shown_.Frames().At(frame)->bitmap;
    if (!picture || !picture->HasRows()) return std::nullopt;
    const int height = kBlockHeight - 4 * kGap;
    const int width = std::max(height * picture->Width() / picture->Height(), 1);
    if (width + 2 * kGap > PlaceOf(frame).width()) return std::nullopt;
    return FrameImages::Wanted{picture, QSize(width, height) * devicePixelRatioF()};
}

// While the view is hidden its layout may have frames that are gone.
void TimelineView::WantThumbnails() {
    if (!isVisible()) return;
    std::vector<FrameImages::Wanted> wanted;
    const auto [first, last] = FramesInSight();
    for (int32 i = first; i < last; ++i) {
        if (auto thumbnail = ThumbnailOf(i)) wanted.push_back(std::move(*thumbnail));
    }
    thumbnails_.Want(std::move(wanted));
}

void TimelineView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    if (isVisible()) LayOut();
}

void TimelineView::showEvent(QShowEvent* event) {
    QAbstractScrollArea::showEvent(event);
    kept_in_sight_ = -1;
    UpdateDisplay();
}

void TimelineView::scrollContentsBy(int, int) {
    WantThumbnails();
    viewport()->update();
}

void TimelineView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRect area = event->rect();
    const auto [first, last] =
        layout_.Between(AtContent(area.left() - 1), AtContent(area.right() + 1));
    for (int32 i = first; i < last; ++i)
        PaintBlock(painter, i);
    PaintRuler(painter, area);
    PaintPlayhead(painter);
    PaintDragging(painter);
}

// Colors as in the grid: the current frame has a line around it, selected ones are tinted.
void TimelineView::PaintBlock(QPainter& painter, int32 frame) {
    const QRect block = PlaceOf(frame).adjusted(0, 0, -1, -1);
    const bool several = shown_.Current().several.Contains(frame);
    painter.fillRect(block, palette().color(QPalette::Button));
    PaintThumbnail(painter, frame, block);
    if (several) {
        QColor tint = palette().color(QPalette::Highlight);
        tint.setAlphaF(0.3F);
        painter.fillRect(block, tint);
    }
    if (frame == shown_.Selected()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(block.adjusted(1, 1, 0, 0));
    }
}

// The picture at the left, and beside it, where there is room, what the block stands for.
void TimelineView::PaintThumbnail(QPainter& painter, int32 frame, const QRect& block) {
    int right = block.left() + kGap;
    if (const auto wanted = ThumbnailOf(frame)) {
        QImage image = thumbnails_.Find(*wanted);
        image.setDevicePixelRatio(devicePixelRatioF());
        painter.drawImage(block.topLeft() + QPoint(kGap, kGap), image);
        right += qRound(wanted->size.width() / devicePixelRatioF()) + kGap;
    }
    const QString number = QString::number(frame);
    const QRect room(right + kGap, block.top() + kGap, block.right() - right - 2 * kGap,
                     block.height() - 2 * kGap);
    if (fontMetrics().horizontalAdvance(number) > room.width()) return;
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop, number);
    const QString time = SecondsText(layout_.SecondsOf(frame));
    if (fontMetrics().horizontalAdvance(time) <= room.width())
        painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom, time);
}

// Times stand where frames begin, as far apart as they can be read.
void TimelineView::PaintRuler(QPainter& painter, const QRect& area) {
    painter.fillRect(QRect(area.left(), 0, area.width(), RulerHeight() - 1),
                     palette().color(QPalette::Window));
    const int apart = fontMetrics().horizontalAdvance("00.00 s") * 3 / 2;
    painter.setPen(palette().color(QPalette::WindowText));
    const auto [first, last] = FramesInSight();
    int free_from = first > 0 ? 0 : -apart;
    for (int32 i = first; i < last; ++i) {
        const int x = InViewport(layout_.LeftOf(i));
        if (x < free_from) continue;
        free_from = x + apart;
        painter.drawLine(x, RulerHeight() - 6, x, RulerHeight() - 2);
        painter.drawText(QRect(x + 3, 0, apart, RulerHeight() - 2),
                         Qt::AlignLeft | Qt::AlignVCenter, SecondsText(layout_.StartOf(i)));
    }
}

void TimelineView::PaintPlayhead(QPainter& painter) {
    const QRect place = PlayheadPlace();
    if (place.isEmpty()) return;
    const int x = place.center().x();
    const QColor color = palette().color(QPalette::Highlight);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPoint triangle[] = {{x - 5, 1}, {x + 5, 1}, {x, 10}};
    painter.drawPolygon(triangle, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(x, 8, 1, viewport()->height(), color);
}

// The place of a drop, or beside the pointer the pause that an edge is dragged to.
void TimelineView::PaintDragging(QPainter& painter) {
    if (drop_position_ >= 0) {
        const bool at_end = drop_position_ == layout_.Count();
        const double x = at_end ? layout_.Width() : layout_.LeftOf(drop_position_);
        painter.fillRect(InViewport(x) - 2, RulerHeight(), 3, kBlockHeight,
                         palette().color(QPalette::Highlight));
    }
    if (drag_ != Drag::kEdge) return;
    const QString text = SecondsText(pause_.seconds);
    QRect label(QPoint(), fontMetrics().size(0, text) + QSize(10, 4));
    label.moveTopLeft(pointer_ + QPoint(10, -label.height() / 2));
    label.moveRight(std::min(label.right(), viewport()->width() - 1));
    label.moveTop(std::clamp(label.top(), 0, viewport()->height() - label.height()));
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawRect(label.adjusted(0, 0, -1, -1));
    painter.drawText(label, Qt::AlignCenter, text);
}

}  // namespace kirto
