#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>

#include "animation/playback_schedule.h"
#include "ui/controls/frame_images.h"

class QLabel;

namespace kirto {

class PicturePane;

// Two animations side by side, playing in step: what is exported, and what becomes of it. Both are
// zoomed and moved together. Uses no time while it is hidden. GUI thread.
class ExportView : public QWidget {
  public:
    explicit ExportView(QWidget* parent = nullptr);
    ~ExportView() override;

    // in_seconds: the unit of the pauses; else hundredths.
    void ShowOriginal(std::shared_ptr<const Animation> animation, bool in_seconds);
    // Drawn as large as the original. Null: nothing yet; the picture before stays.
    void ShowResult(std::shared_ptr<const Animation> animation);
    void SetPlaying(bool plays);
    // From the start, in milliseconds; what a test looks at.
    void ShowTime(int64 milliseconds);

    PicturePane& Original() { return *sides_[0].pane; }
    PicturePane& Result() { return *sides_[1].pane; }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct Side {
        PicturePane* pane = nullptr;
        std::shared_ptr<const Animation> animation;
        PlaybackSchedule schedule;
        int32 shown = -1;  // the frame in the pane
    };

    void AddSide(Side* side, const char* name, const QString& title);
    void Follow(const PicturePane& from, PicturePane& to);
    void ShowFrames();
    void ShowFrame(Side& side);
    std::vector<FrameImages::Wanted> WantedOf(const Side& side) const;
    int32 FrameOf(const Side& side) const;
    void Go();

    std::array<Side, 2> sides_;
    QSize canvas_;   // of the original
    int64 now_ = 0;  // milliseconds
    bool plays_ = true;
    bool following_ = false;
    QTimer timer_;
    QElapsedTimer clock_;
    FrameImages images_;
};

}  // namespace kirto
