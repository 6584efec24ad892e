#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "animation/animation.h"
#include "animation/playback_clock.h"
#include "app/fade_preview.h"
#include "base/types.h"
#include "ui/controls/latest_work.h"

class QPainter;

namespace kirto {

// Shows a fade on the chosen color: as it plays, in a loop with the pauses that it will have, and
// beside that as a strip of pictures from its first frame to its last. The color alone while there
// is nothing to fade. Looks at the choice each time it is painted; the pictures are made on a
// thread of their own. Uses no time while it is not painted. GUI thread.
class FadeStrip : public QWidget {
  public:
    using Now = std::function<PlaybackClock::Instant()>;

    FadeStrip(const char* name, std::function<FadeChoice()> choice, QWidget* parent);

    // Whose current frame is to be faded; null for none. in_seconds: the unit of its pauses; else
    // hundredths.
    void SetAnimation(std::shared_ptr<const Animation> animation, bool in_seconds);
    // Whether the pictures are those of the choice.
    bool IsReady() const { return shown_ && *shown_ == choice_(); }
    // All pictures of the fade that was made last, in their order.
    const std::vector<QImage>& Images() const { return images_; }
    // The one that is seen now; -1 without any.
    int32 Place() const { return clock_.At(now_()).place; }
    // Whether it will be painted again by itself.
    bool IsPlaying() const { return timer_.isActive(); }
    // A steady clock unless a test sets another one.
    void SetNow(Now now);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct Made {
        std::vector<QImage> images;
        PlaybackSchedule schedule;
    };

    static Made Make(const Animation& animation, const FadeChoice& choice, bool in_seconds,
                     const std::atomic<bool>& stop);
    void Ask(const FadeChoice& choice);
    void Take(const FadeChoice& choice, Made made);
    void PaintStrip(QPainter& painter, const QRectF& room) const;
    void Wait();

    const std::function<FadeChoice()> choice_;
    Now now_;
    std::shared_ptr<const Animation> animation_;
    bool in_seconds_ = false;
    std::optional<FadeChoice> asked_;  // what is made or has been
    std::optional<FadeChoice> shown_;  // what the images are of
    std::vector<QImage> images_;
    PlaybackClock clock_;
    QTimer timer_;     // until the next image is to be seen
    LatestWork work_;  // destroyed first
};

}  // namespace kirto
