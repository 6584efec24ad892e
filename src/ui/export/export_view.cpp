#include "ui/export/export_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "kit/qt/ui_text.h"
#include "ui/controls/canvas_place.h"
#include "ui/player/picture_pane.h"

namespace kirto {

namespace {

constexpr int kTickMilliseconds = 16;

}  // namespace

ExportView::ExportView(QWidget* parent) : QWidget(parent), images_([this] { ShowFrames(); }) {
    setObjectName("ExportView");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    AddSide(&sides_[0], "Original", UiText::tr("Original"));
    AddSide(&sides_[1], "Result", UiText::tr("Result"));
    for (size_t i = 0; i < sides_.size(); ++i) {
        PicturePane& pane = *sides_[i].pane;
        PicturePane& other = *sides_[1 - i].pane;
        pane.WhenMoved([this, &pane, &other] { Follow(pane, other); });
    }
    timer_.setInterval(kTickMilliseconds);
    connect(&timer_, &QTimer::timeout, this, [this] {
        now_ += clock_.restart();
        ShowFrames();
    });
}

ExportView::~ExportView() {
    for (const Side& side : sides_)
        side.pane->WhenMoved({});
}

void ExportView::AddSide(Side* side, const char* name, const QString& title) {
    auto* column = new QVBoxLayout;
    column->addWidget(new QLabel(title, this));
    side->pane = new PicturePane(this);
    side->pane->setObjectName(name);
    side->pane->setAccessibleName(title);
    column->addWidget(side->pane, 1);
    static_cast<QHBoxLayout*>(layout())->addLayout(column, 1);
}

void ExportView::Follow(const PicturePane& from, PicturePane& to) {
    if (following_) return;
    following_ = true;
    to.ShowLike(from);
    following_ = false;
}

void ExportView::ShowOriginal(std::shared_ptr<const Animation> animation, bool in_seconds) {
    Side& side = sides_[0];
    side.animation = std::move(animation);
    canvas_ = PaintedCanvasOf(*side.animation);
    side.schedule =
        PlaybackSchedule(*side.animation, FrameSet::AllOf(side.animation->frames.Size()),
                         {.pauses_in_seconds = in_seconds});
    side.shown = -1;
    for (const Side& each : sides_)
        each.pane->SetCanvas(canvas_);
    ShowFrames();
}

void ExportView::ShowResult(std::shared_ptr<const Animation> animation) {
    if (!animation) return;
    Side& side = sides_[1];
    side.animation = std::move(animation);
    side.schedule =
        PlaybackSchedule(*side.animation, FrameSet::AllOf(side.animation->frames.Size()), {});
    side.shown = -1;
    ShowFrames();
}

void ExportView::SetPlaying(bool plays) {
    plays_ = plays;
    Go();
}

void ExportView::ShowTime(int64 milliseconds) {
    now_ = milliseconds;
    ShowFrames();
}

void ExportView::Go() {
    if (!plays_ || !isVisible()) return timer_.stop();
    clock_.start();
    timer_.start();
}

void ExportView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Go();
}

void ExportView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    timer_.stop();
}

// Of the round that is played at that time; -1 without frames.
int32 ExportView::FrameOf(const Side& side) const {
    if (!side.animation || side.schedule.Empty()) return -1;
    const PlaybackSchedule::Duration now = std::chrono::milliseconds(now_);
    return side.schedule.FrameAt(side.schedule.PlaceAt(now % side.schedule.Length()));
}

// The frame of now and the next one.
std::vector<FrameImages::Wanted> ExportView::WantedOf(const Side& side) const {
    const int32 frame = FrameOf(side);
    if (frame < 0) return {};
    std::vector<FrameImages::Wanted> wanted;
    const int32 count = side.animation->frames.Size();
    for (const int32 each : {frame, (frame + 1) % count}) {
        const FramePointer shown = side.animation->frames.At(each);
        if (shown->bitmap) wanted.push_back({shown->bitmap, QSize()});
    }
    return wanted;
}

void ExportView::ShowFrames() {
    const auto is_shown = [this](const Side& side) { return side.shown == FrameOf(side); };
    if (std::all_of(sides_.begin(), sides_.end(), is_shown)) return;
    std::vector<FrameImages::Wanted> wanted;
    for (const Side& side : sides_) {
        for (FrameImages::Wanted& each : WantedOf(side))
            wanted.push_back(std::move(each));
    }
    images_.Want(std::move(wanted));
    for (Side& side : sides_)
        ShowFrame(side);
}

// What is not ready leaves the picture before it where it is.
void ExportView::ShowFrame(Side& side) {
    const int32 frame = FrameOf(side);
    if (frame < 0) return;
    const FramePointer shown = side.animation->frames.At(frame);
    if (!shown->bitmap) {
        side.shown = frame;
        return side.pane->SetLayers({});
    }
    const QImage image = images_.Find({shown->bitmap, QSize()});
    if (image.isNull()) return;
    const QSize own = PaintedCanvasOf(*side.animation);
    const double across = static_cast<double>(canvas_.width()) / own.width();
    const double down = static_cast<double>(canvas_.height()) / own.height();
    side.pane->SetLayers({{image, PlaceOnCanvas(*shown, across, down)}});
    side.shown = frame;
}

}  // namespace kirto
