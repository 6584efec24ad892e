#include "ui/dialogs/fade_strip.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>
#include <chrono>
#include <utility>

#include "ui/controls/image_of.h"

namespace kirto {

namespace {

constexpr int kStripLines = 4;         // of text, high
constexpr size_t kStripImages = 5;     // beside the one that plays
constexpr double kPlayingShare = 0.3;  // of the width, at most
constexpr int kStripMargin = 3;
constexpr int32 kStripSide = 128;  // of a picture, pixels
constexpr int32 kMostFrames = 100;

PlaybackClock::Instant MonotonicNow() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

QColor PixelColor(uint32 color) {
    return {static_cast<int>(color >> 24), static_cast<int>(color >> 16 & 0xFF),
            static_cast<int>(color >> 8 & 0xFF)};
}

void DrawFitted(QPainter& painter, const QImage& image, const QRectF& room) {
    QRectF place({}, QSizeF(image.size()).scaled(room.size(), Qt::KeepAspectRatio));
    place.moveCenter(room.center());
    painter.drawImage(place, image);
}

}  // namespace

FadeStrip::FadeStrip(const char* name, std::function<FadeChoice()> choice, QWidget* parent)
    : QWidget(parent), choice_(std::move(choice)), now_(MonotonicNow) {
    setObjectName(QString::fromUtf8(name));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] { update(); });
}

void FadeStrip::SetAnimation(std::shared_ptr<const Animation> animation, bool in_seconds) {
    animation_ = std::move(animation);
    in_seconds_ = in_seconds;
    asked_.reset();
    update();
}

void FadeStrip::SetNow(Now now) {
    now_ = std::move(now);
    clock_.Start(clock_.Schedule(), 0, PlaybackClock::kForever, now_());
    update();
}

QSize FadeStrip::sizeHint() const {
    const int side = kStripLines * fontMetrics().height();
    return {2 * side, side};
}

FadeStrip::Made FadeStrip::Make(const Animation& animation, const FadeChoice& choice,
                                bool in_seconds, const std::atomic<bool>& stop) {
    Made made;
    if (choice.count < 1 || choice.count > kMostFrames) return made;
    const Animation fade = FadePreview(animation, choice, kStripSide, stop);
    for (const FramePointer& frame : fade.frames)
        made.images.push_back(ImageOf(frame->bitmap, {kStripSide, kStripSide}).copy());
    made.schedule = PlaybackSchedule(fade, FrameSet::AllOf(fade.frames.Size()),
                                     {.pauses_in_seconds = in_seconds});
    return made;
}

void FadeStrip::Ask(const FadeChoice& choice) {
    asked_ = choice;
    if (!animation_) return Take(choice, {});
    work_.Do([this, choice, animation = animation_,
              in_seconds = in_seconds_](const std::atomic<bool>& stop) {
        return [this, choice, made = Make(*animation, choice, in_seconds, stop)] {
            Take(choice, made);
        };
    });
}

// A fade in other colors goes on where the one before was.
void FadeStrip::Take(const FadeChoice& choice, Made made) {
    const PlaybackSchedule& before = clock_.Schedule();
    const bool in_step = shown_ && shown_->command == choice.command &&
                         before.Count() == made.schedule.Count() &&
                         before.Length() == made.schedule.Length();
    shown_ = choice;
    images_ = std::move(made.images);
    if (!in_step) clock_.Start(std::move(made.schedule), 0, PlaybackClock::kForever, now_());
    update();
}

void FadeStrip::paintEvent(QPaintEvent*) {
    const FadeChoice choice = choice_();
    if (asked_ != choice) Ask(choice);
    QPainter painter(this);
    painter.fillRect(rect(), PixelColor(choice.color));
    QStyleOptionFrame frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
    if (images_.empty()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRectF room = QRectF(rect()).adjusted(kStripMargin, kStripMargin, -kStripMargin, -kStripMargin);
    const QSizeF playing =
        QSizeF(images_.front().size())
            .scaled(room.width() * kPlayingShare, room.height(), Qt::KeepAspectRatio);
    const QRectF left(room.topLeft(), QSizeF(playing.width(), room.height()));
    DrawFitted(painter, images_[static_cast<size_t>(Place())], left);
    room.setLeft(left.right() + 3 * kStripMargin);
    PaintStrip(painter, room);
    Wait();
}

void FadeStrip::PaintStrip(QPainter& painter, const QRectF& room) const {
    const size_t shown = std::min(images_.size(), kStripImages);
    const double share = room.width() / static_cast<double>(shown);
    for (size_t i = 0; i < shown; ++i) {
        const size_t place = shown > 1 ? i * (images_.size() - 1) / (shown - 1) : 0;
        const QRectF part(room.left() + share * static_cast<double>(i), room.top(),
                          share - kStripMargin, room.height());
        DrawFitted(painter, images_[place], part);
    }
}

// Only what is painted is painted again: nobody waits in a window that is hidden or minimized.
void FadeStrip::Wait() {
    const PlaybackClock::Instant now = now_();
    const auto next = clock_.At(now).next;
    if (!next || images_.size() < 2) return timer_.stop();
    timer_.start(std::chrono::ceil<std::chrono::milliseconds>(*next - now));
}

void FadeStrip::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    timer_.stop();
    work_.Stop();
    if (!IsReady()) asked_.reset();
}

}  // namespace kirto
