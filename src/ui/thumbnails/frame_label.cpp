#include "ui/thumbnails/frame_label.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "animation/gif_source.h"
#include "animation/pauses.h"
#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr qreal kSmaller = 0.85;  // than the font of the widget
constexpr qreal kLabelMargin = 3;
constexpr qreal kMostOfThumbnail = 1.0 / 3;
constexpr int kLabelOpacity = 217;  // of 255

bool IsCleared(Disposal disposal) {
    return disposal == Disposal::kBackground || disposal == Disposal::kPrevious;
}

QFont SmallFont(const QFont& font) {
    QFont small = font;
    if (font.pointSizeF() > 0) {
        small.setPointSizeF(font.pointSizeF() * kSmaller);
    } else {
        small.setPixelSize(std::max(1, qRound(font.pixelSize() * kSmaller)));
    }
    return small;
}

// Four fields of color.
void PaintPaletteMark(QPainter& painter, const QRectF& place, const QColor& ink) {
    const qreal half = place.width() / 2;
    QColor pale = ink;
    pale.setAlphaF(0.5F);
    painter.fillRect(QRectF(place.topLeft(), QSizeF(half, half)), ink);
    painter.fillRect(QRectF(place.center(), QSizeF(half, half)), ink);
    painter.fillRect(QRectF(place.center() - QPointF(0, half), QSizeF(half, half)), pale);
    painter.fillRect(QRectF(place.center() - QPointF(half, 0), QSizeF(half, half)), pale);
}

// A picture that leaves nothing behind; with something in it where that comes back which was there
// before.
void PaintDisposalMark(QPainter& painter, const QRectF& place, const QColor& ink, bool previous) {
    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
    if (!previous) return;
    const qreal inset = place.width() * 0.3;
    painter.fillRect(place.adjusted(inset, inset, -inset, -inset), ink);
}

// The usual sign of a warning.
void PaintDamageMark(QPainter& painter, const QRectF& place, const QColor& ink) {
    const QPointF corners[] = {QPointF(place.center().x(), place.top()), place.bottomRight(),
                               place.bottomLeft()};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawConvexPolygon(corners, 3);
    const qreal middle = place.center().x();
    const qreal height = place.height();
    painter.drawLine(QPointF(middle, place.top() + height * 0.35),
                     QPointF(middle, place.top() + height * 0.65));
    painter.drawPoint(QPointF(middle, place.top() + height * 0.83));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

FrameLabel FrameLabel::Of(const Animation& animation, int32 index, bool in_seconds) {
    const Frame& frame = *animation.frames.At(index);
    FrameLabel label;
    label.number = QString::number(index);
    const double seconds = animation.PauseOf(frame) / PauseUnitsPerSecond(in_seconds);
    label.pause = UiText::tr("%1 s").arg(seconds, 0, 'f', 2);
    label.own_pause = frame.use_pause;
    label.own_palette = frame.local_palette;
    label.damaged = frame.damaged;
    if (frame.source) label.disposal = frame.source->disposal;
    return label;
}

QString FrameLabel::Marks() const {
    QString text;
    const auto add = [&](bool holds, const char* words) {
        if (holds) text += (text.isEmpty() ? "" : ", ") + UiText::tr(words);
    };
    add(damaged, UiText::Later("damaged, what was good was kept"));
    add(own_pause, UiText::Later("own pause"));
    add(own_palette, UiText::Later("own palette"));
    add(disposal == Disposal::kBackground, UiText::Later("cleared after it was shown"));
    add(disposal == Disposal::kPrevious, UiText::Later("what was before comes back after it"));
    return text;
}

void FrameLabel::Paint(QPainter& painter, const QRectF& thumbnail, const QPalette& palette) const {
    const QFont small = SmallFont(painter.font());
    const QFontMetricsF metrics(small, painter.device());
    QRectF strip = thumbnail;
    strip.setTop(thumbnail.bottom() - std::ceil(metrics.height()));
    const QRectF room = strip.adjusted(kLabelMargin, 0, -kLabelMargin, 0);
    const bool fits = thumbnail.height() >= kLeastHeight &&
                      strip.height() <= thumbnail.height() * kMostOfThumbnail &&
                      metrics.horizontalAdvance(number) <= room.width();
    if (!fits) return;
    QColor paper = palette.color(QPalette::Window);
    paper.setAlpha(kLabelOpacity);
    painter.save();
    painter.fillRect(strip, paper);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.setFont(small);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, number);
    PaintBehind(painter, room.adjusted(metrics.horizontalAdvance(number) + kLabelMargin, 0, 0, 0));
    painter.restore();
}

// The marks and, at the right, the pause.
void FrameLabel::PaintBehind(QPainter& painter, const QRectF& room) const {
    const QColor ink = painter.pen().color();
    const qreal side = std::floor(QFontMetricsF(painter.font(), painter.device()).ascent() * 0.7);
    QFont font = painter.font();
    font.setBold(own_pause);
    const qreal pause_width = QFontMetricsF(font, painter.device()).horizontalAdvance(pause);
    const qreal marks_width = MarkCount() * (side + kLabelMargin);
    if (marks_width > room.width()) return;
    PaintMarks(painter, {room.left(), std::round(room.center().y() - side / 2), side, side});
    if (marks_width + pause_width > room.width()) return;
    painter.setPen(ink);
    painter.setFont(font);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, pause);
}

int FrameLabel::MarkCount() const {
    return (damaged ? 1 : 0) + (own_palette ? 1 : 0) + (IsCleared(disposal) ? 1 : 0);
}

// mark: the place of the first one.
void FrameLabel::PaintMarks(QPainter& painter, QRectF mark) const {
    const QColor ink = painter.pen().color();
    const auto next = [&mark] { mark.translate(mark.width() + kLabelMargin, 0); };
    if (damaged) {
        PaintDamageMark(painter, mark, ink);
        next();
    }
    if (own_palette) {
        PaintPaletteMark(painter, mark, ink);
        next();
    }
    if (IsCleared(disposal)) PaintDisposalMark(painter, mark, ink, disposal == Disposal::kPrevious);
}

}  // namespace kirto
