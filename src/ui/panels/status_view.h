#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include "kit/messenger.h"
#include "ui/controls/shown_document.h"

// The line at the window's bottom: how many frames there are or what is being done, and, for work
// that takes long, a bar that says how far it is and a button that stops it. GUI thread.
class StatusView : public QWidget {
  public:
    // shown outlives the view. The window receives kStopWork from the button.
    StatusView(const kirto::ShownDocument& shown, const BMessenger& window,
               QWidget* parent = nullptr);

    // Shows the text as it is; null: the document's state.
    void UpdateDisplay(const char* text);
    void UpdateDisplay() { UpdateDisplay(nullptr); }
    void ResetDisplay();

    // Show work of which so much is done, and that there is none. total: 0 where it is not known.
    void ShowWork(int64 done, int64 total);
    void HideWork();

    QLabel* status;
    QLabel* selection;  // what is selected, and how long the animation plays
    QProgressBar* progress;
    QPushButton* cancel;

  private:
    void ShowSelection();

    const kirto::ShownDocument& shown_;
};
