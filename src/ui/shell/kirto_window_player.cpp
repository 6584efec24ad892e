// The part of the main window that shows and hides the player and what else can be hidden, and
// arranges the frames.
#include <QKeyEvent>
#include <QLayout>
#include <QSplitter>
#include <QStackedWidget>

#include "ui/dialogs/colors_window.h"
#include "ui/player/player_view.h"
#include "ui/shell/kirto_window.h"
#include "ui/shell/main_menu.h"
#include "ui/thumbnails/frame_list_view.h"
#include "ui/thumbnails/thumb_drawing_view.h"
#include "ui/thumbnails/thumbnail_view.h"
#include "ui/timeline/timeline_view.h"

// The frames in all the room, or below the player.
QWidget* KirtoWindow::ArrangeFrames() {
    frame_area_ = new QStackedWidget;
    frame_area_->addWidget(thumbnail_view_);
    frame_area_->addWidget(frame_list_view_);
    player_splitter_ = new QSplitter(Qt::Vertical);
    player_splitter_->setObjectName("PlayerSplitter");
    player_splitter_->setChildrenCollapsible(false);
    auto* timeline = new kirto::TimelineView(shown_, Messenger());
    player_view_->AddBelow(timeline);
    player_view_->WhenFrameChanges(
        [this, timeline] { timeline->SetPlayhead(player_view_->Playback().Frame()); });
    timeline->WhenDragged([this](int32 frame, bool last) {
        kirto::Player& player = player_view_->Playback();
        if (last) {
            player.ShowFrame(frame);
        } else {
            player.Peek(frame);
        }
    });
    player_view_->WhenUpdated([timeline] { timeline->UpdateDisplay(); });
    player_splitter_->addWidget(player_view_);
    player_splitter_->addWidget(frame_area_);
    player_splitter_->setStretchFactor(0, 3);
    player_splitter_->setStretchFactor(1, 2);
    player_view_->hide();
    return player_splitter_;
}

bool KirtoWindow::ShowsPlayer() const {
    return !player_view_->isHidden();
}

// The window may have to grow with it.
void KirtoWindow::ShowPlayer(bool shown) {
    player_view_->setVisible(shown);
    kirto::ShowPlayer(*menuBar(), shown);
    // From inside out, or the window would not know yet what its content needs.
    player_splitter_->refresh();
    splitter_->refresh();
    centralWidget()->layout()->invalidate();
    centralWidget()->updateGeometry();
    LimitSize();
}

void KirtoWindow::TogglePlayer(BMessage*) {
    ShowPlayer(!ShowsPlayer());
}

void KirtoWindow::Play(BMessage*) {
    if (!ShowsPlayer()) ShowPlayer(true);
    player_view_->Playback().Toggle();
}

void KirtoWindow::ShowLabels(bool shown) {
    thumbnail_view_->DrawingView()->ShowLabels(shown);
    kirto::ShowLabels(*menuBar(), shown);
}

void KirtoWindow::ToggleLabels(BMessage*) {
    ShowLabels(!thumbnail_view_->DrawingView()->ShowsLabels());
}

void KirtoWindow::ShowColors(BMessage*) {
    if (!colors_window_) colors_window_ = new ColorsWindow(shown_, editor_.application, this);
    colors_window_->show();
    colors_window_->raise();
    colors_window_->activateWindow();
}

void KirtoWindow::FitThumbnails() {
    if (shown_.Frames().Empty()) return;
    const Prefs& settings = shown_.Settings();
    SetThumbnailHeight(thumbnail_view_->DrawingView()->FittingHeight(settings.thumbnail_minheight,
                                                                     settings.thumbnail_maxheight));
}

void KirtoWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        if (!event->isAutoRepeat()) Play(nullptr);
        return;
    }
    QMainWindow::keyPressEvent(event);
}
