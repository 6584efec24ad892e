#pragma once

#include <QListWidget>

#include "animation/animation.h"
#include "kit/messenger.h"

// The frames as rows of text. Sends kFrameListSelection to the window when the user selects others.
// GUI thread.
class FrameList : public QListWidget {
  public:
    explicit FrameList(BMessenger window, QWidget* parent = nullptr);

    // Shows the frames of the animation and which of them are selected. Touches only rows that
    // change, and sends nothing.
    void ShowFrames(const kirto::Animation& animation);
    // The rows that are selected.
    kirto::FrameSet Selection() const;
    // The current one of them, or -1.
    int32 CurrentSelection() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ShowSelection(const kirto::FrameSet& frames, int32 current);

    const BMessenger window_;
    kirto::FrameSequence frames_;  // in the rows
    bool showing_ = false;         // the program, not the user, is changing the rows
};
