#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "kit/messenger.h"
#include "ui/controls/frame_images.h"
#include "ui/controls/shown_document.h"
#include "ui/player/picture_pane.h"
#include "ui/player/player.h"

namespace kirto {

class LookBar;
class TransportBar;

// The animation as it is seen when it plays: its picture, what chooses the look of that, and what
// plays. Keys: Space plays and pauses, Left, Right, Home and End go through the frames, + and -
// zoom, 0 fits and 1 shows pixels in their own size. Nothing is done while it can't be seen. GUI
// thread.
class PlayerView : public QWidget {
  public:
    // commands: where frames are selected. shown outlives the view.
    PlayerView(const ShownDocument& shown, const BMessenger& commands, QWidget* parent = nullptr);
    ~PlayerView() override;

    // Shows what is shown now; makes up for it later while it is hidden.
    void UpdateDisplay();

    Player& Playback() { return player_; }
    PicturePane& Pane() { return *pane_; }
    // The frame whose picture the pane has; -1 without one.
    int32 PaintedFrame() const { return painted_frame_; }
    // Below the picture.
    void AddBelow(QWidget* widget);
    // Called when the document is shown anew, before the frame of it is.
    void WhenUpdated(std::function<void()> updated) { updated_ = std::move(updated); }
    // Called when another frame is seen, or playing begins or ends.
    void WhenFrameChanges(std::function<void()> changed) { frame_changed_ = std::move(changed); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Arrange();
    void ShowPlayer();
    void ShowPictures();
    void ShowPixel(std::optional<QPoint> pixel);
    QSize CanvasSize() const;
    QRect PlaceOf(int32 frame) const;
    FrameImages::Wanted ImageOf(int32 frame) const;
    bool HasPicture(int32 frame) const;
    bool IsReady(int32 frame);
    int32 FrameToPaint();
    std::vector<FrameImages::Wanted> WantedImages();
    std::vector<int32> OnionFrames() const;

    const ShownDocument& shown_;
    Player player_;
    FrameImages images_;
    PicturePane* pane_;
    LookBar* look_;
    TransportBar* transport_;
    std::function<void()> updated_;
    std::function<void()> frame_changed_;
    int32 painted_frame_ = -1;
};

}  // namespace kirto
