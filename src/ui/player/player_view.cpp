#include "ui/player/player_view.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "kit/qt/ui_text.h"
#include "ui/controls/canvas_place.h"
#include "ui/player/look_bar.h"
#include "ui/player/pixel_text.h"
#include "ui/player/transport_bar.h"

namespace kirto {

PlayerView::PlayerView(const ShownDocument& shown, const BMessenger& commands, QWidget* parent)
    : QWidget(parent),
      shown_(shown),
      player_(shown, commands, [this] { ShowPlayer(); }),
      images_([this] { ShowPictures(); }),
      pane_(new PicturePane(this)),
      look_(new LookBar(
          *pane_, [this] { ShowPictures(); }, this)),
      transport_(new TransportBar(player_, this)) {
    setObjectName("PlayerView");
    player_.SetSeen(false);
    pane_->WhenZoomed([this] {
        look_->ShowZoom();
        ShowPictures();
    });
    pane_->WhenPointed([this](std::optional<QPoint> pixel) { ShowPixel(pixel); });
    Arrange();
}

PlayerView::~PlayerView() {
    // What the children tell while they go is of no use any more.
    pane_->WhenZoomed({});
    pane_->WhenPointed({});
}

void PlayerView::Arrange() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(pane_, 1);
    layout->addWidget(look_);
    layout->addWidget(transport_);
}

void PlayerView::AddBelow(QWidget* widget) {
    layout()->addWidget(widget);
}

void PlayerView::UpdateDisplay() {
    if (!isVisible()) return;
    if (updated_) updated_();
    // The pane asks for pictures, of which the player is to know before.
    player_.UpdateDisplay();
    pane_->SetCanvas(CanvasSize());
}

// While it plays the picture comes first, at once.
void PlayerView::ShowPlayer() {
    ShowPictures();
    if (player_.IsPlaying()) pane_->repaint();
    transport_->UpdateDisplay(shown_.FrameCount());
    if (frame_changed_) frame_changed_();
}

// Without a canvas of its own the animation has that of the frame.
QSize PlayerView::CanvasSize() const {
    const Animation& animation = shown_.Current();
    const FramePointer frame = shown_.CurrentFrame();
    const int32 width = animation.width > 0 ? animation.width : frame ? frame->width : 0;
    const int32 height = animation.height > 0 ? animation.height : frame ? frame->height : 0;
    return QSize(width, height).boundedTo(kLargestCanvas);
}

QRect PlayerView::PlaceOf(int32 frame) const {
    const FramePointer shown = shown_.Frames().At(frame);
    if (look_->ShowsSavedColors() || !shown->bitmap) return {QPoint(), CanvasSize()};
    return PlaceOnCanvas(*shown);
}

// As large as it is painted, where that is smaller: scaling is too slow for painting.
FrameImages::Wanted PlayerView::ImageOf(int32 frame) const {
    const QRect place = PlaceOf(frame);
    const QSize painted = pane_->PixelsOf(place);
    const bool smaller = painted.width() < place.width() || painted.height() < place.height();
    FrameImages::Wanted wanted{shown_.Frames().At(frame)->bitmap, smaller ? painted : QSize()};
    if (look_->ShowsSavedColors()) {
        wanted.saved = shown_.StatePointer();
        wanted.position = frame;
    }
    return wanted;
}

// Only one frame is seen while it plays.
std::vector<int32> PlayerView::OnionFrames() const {
    std::vector<int32> frames;
    if (player_.IsPlaying() || player_.Frame() < 0) return frames;
    if (look_->ShowsPrevious() && player_.Frame() > 0) frames.push_back(player_.Frame() - 1);
    if (look_->ShowsNext() && player_.Frame() + 1 < shown_.FrameCount())
        frames.push_back(player_.Frame() + 1);
    return frames;
}

// While it plays, some ahead; else those that a step leads to. What is late already comes last, or
// what comes next would be late, too.
std::vector<FrameImages::Wanted> PlayerView::WantedImages() {
    std::vector<FrameImages::Wanted> wanted;
    const auto add = [&](int32 frame) {
        if (HasPicture(frame)) wanted.push_back(ImageOf(frame));
    };
    constexpr int32 kStill = 2;
    const bool behind = player_.IsPlaying() && !IsReady(player_.Frame());
    if (!behind) add(player_.Frame());
    for (const int32 frame : OnionFrames())
        add(frame);
    const QSize size = pane_->PixelsOf({QPoint(), CanvasSize()}).boundedTo(CanvasSize());
    const int32 most = player_.IsPlaying() ? FrameImages::RoomFor(size) - 1 : kStill;
    for (const int32 frame : player_.Upcoming(most))
        if (frame != player_.Frame()) add(frame);
    if (behind) add(player_.Frame());
    return wanted;
}

// While the view is hidden the player may know frames that are gone.
bool PlayerView::HasPicture(int32 frame) const {
    const FramePointer shown = shown_.Frames().At(frame);
    return shown && shown->bitmap;
}

bool PlayerView::IsReady(int32 frame) {
    if (frame >= shown_.FrameCount()) return false;
    bool made = !HasPicture(frame);
    if (!made) images_.Find(ImageOf(frame), &made);
    return made;
}

// The frame that is due; where it is late, the last one before it that is there and has not been
// painted yet: better late than never.
int32 PlayerView::FrameToPaint() {
    constexpr int32 kMostLate = 8;
    const int32 due = player_.Frame();
    if (!player_.IsPlaying()) return due;
    const PlaybackSchedule& schedule = player_.Schedule();
    const int32 place = schedule.PlaceOf(due);
    for (int32 i = 0; i < std::min(kMostLate, schedule.Count()); ++i) {
        const int32 frame = schedule.FrameAt((place - i + schedule.Count()) % schedule.Count());
        if (frame == painted_frame_) break;
        if (IsReady(frame)) return frame;
    }
    return due;
}

// A picture that is not ready leaves the one before it where it is.
void PlayerView::ShowPictures() {
    if (player_.Frame() < 0 || player_.Frame() >= shown_.FrameCount()) {
        painted_frame_ = -1;
        return pane_->SetLayers({});
    }
    images_.Want(WantedImages());
    const int32 frame = FrameToPaint();
    std::vector<PicturePane::Layer> layers;
    bool all_made = true;
    const auto add = [&](int32 number, double opacity) {
        bool made = !shown_.Frames().At(number)->bitmap;
        const QImage image = made ? QImage() : images_.Find(ImageOf(number), &made);
        all_made = all_made && made;
        layers.push_back({image, PlaceOf(number), opacity});
    };
    add(frame, 1);
    for (const int32 beside : OnionFrames())
        add(beside, look_->OnionOpacity());
    if (!all_made) return;
    painted_frame_ = frame;
    pane_->SetLayers(std::move(layers));
    pane_->setAccessibleDescription(UiText::tr("frame %1").arg(frame));
}

void PlayerView::ShowPixel(std::optional<QPoint> pixel) {
    const FramePointer frame = shown_.Frames().At(painted_frame_);
    if (!pixel || !frame) return look_->ShowPixel({});
    look_->ShowPixel(QString("%1, %2  %3")
                         .arg(pixel->x())
                         .arg(pixel->y())
                         .arg(PixelText(shown_.Current(), *frame, *pixel)));
}

void PlayerView::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier))
        return QWidget::keyPressEvent(event);
    switch (event->key()) {
        case Qt::Key_Space:
            return player_.Toggle();
        case Qt::Key_Left:
            return player_.Step(-1);
        case Qt::Key_Right:
            return player_.Step(1);
        case Qt::Key_Home:
            return player_.ToStart();
        case Qt::Key_End:
            return player_.ToEnd();
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return pane_->ZoomIn();
        case Qt::Key_Minus:
            return pane_->ZoomOut();
        case Qt::Key_0:
            return pane_->Fit();
        case Qt::Key_1:
            return pane_->SetZoom(1);
        default:
            QWidget::keyPressEvent(event);
    }
}

void PlayerView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    window()->installEventFilter(this);
    player_.SetSeen(!window()->isMinimized());
    UpdateDisplay();
}

void PlayerView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    player_.SetSeen(false);
}

// A window that is minimized is not hidden.
bool PlayerView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowStateChange)
        player_.SetSeen(isVisible() && !window()->isMinimized());
    return QWidget::eventFilter(watched, event);
}

}  // namespace kirto
