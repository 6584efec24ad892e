#pragma once

#include <QListWidget>

#include "animation/frame_sequence.h"
#include "kit/messenger.h"

// The frames as rows of text; at most one is selected. Sends kFrameListSelection to the window when
// the user selects another row. GUI thread.
class FrameList : public QListWidget {
  public:
    explicit FrameList(BMessenger window, QWidget* parent = nullptr);

    // Shows the frames, with the row selected selected (-1: none). Touches only rows that change,
    // and sends nothing.
    void ShowFrames(const kirto::FrameSequence& frames, int32 selected);
    // The row that is selected, or -1.
    int32 CurrentSelection() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const BMessenger window_;
    kirto::FrameSequence frames_;  // in the rows
    bool showing_ = false;         // the program, not the user, is changing the rows
};
