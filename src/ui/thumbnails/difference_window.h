#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <memory>

#include "app/save_check.h"
#include "ui/thumbnails/frame_preview.h"

// The frames of a saved animation that browsers show otherwise: as they are in the editor, and as
// they are in the file, beside each other or in turns. Deletes itself when it is closed. GUI
// thread.
class DifferenceWindow : public QDialog {
  public:
    using Finding = std::shared_ptr<const kirto::SaveCheck::Finding>;

    // finding: with at least one pair of frames. draw_transparent: as PicturePainter's.
    DifferenceWindow(Finding finding, bool draw_transparent, QWidget* parent);

    // Shows the n-th of the frames that differ; 0 is the first.
    void ShowPair(int32 number);
    // In one place, in turns, or beside each other.
    void ShowInTurns(bool in_turns);
    // The turn of the other picture comes.
    void TakeTurn();

    kirto::FramePreview* saved;  // as in the editor
    kirto::FramePreview* read;   // as in browsers
    QLabel* saved_label;
    QLabel* read_label;
    QLabel* position;
    QSlider* slider;
    QCheckBox* turns;

  private:
    void Arrange();
    kirto::FramePointer OnScreen(const kirto::FramePointer& frame) const;

    const Finding finding_;
    const bool draw_transparent_;
    QTimer timer_;  // of the turns
};
