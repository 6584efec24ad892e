#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>
#include <memory>

#include "app/saved_size_meter.h"
#include "base/pixel_budget.h"
#include "kit/messenger.h"
#include "ui/controls/shown_document.h"

// The line at the window's bottom: how many frames there are or what is being done, and, for work
// that takes long, a bar that says how far it is and a button that stops it; at the right how long
// the animation plays and, where there is room, how much memory it takes and how large its file
// would be. GUI thread.
class StatusView : public QWidget {
  public:
    // shown outlives the view. The window receives kStopWork from the button.
    StatusView(const kirto::ShownDocument& shown, const BMessenger& window,
               QWidget* parent = nullptr);

    // Shows the text as it is; null: the document's state.
    void UpdateDisplay(const char* text);
    void UpdateDisplay() { UpdateDisplay(nullptr); }
    void ResetDisplay();

    // From now on tells sizes, too. memory: counts what the document takes.
    void ShowSizes(std::shared_ptr<const kirto::PixelBudget> memory);

    // Show work of which so much is done, and that there is none. total: 0 where it is not known.
    void ShowWork(int64 done, int64 total);
    void HideWork();

    QLabel* status;
    QLabel* selection;  // what is selected, and how long the animation plays
    QLabel* sizes;      // in memory, and of the file
    QProgressBar* progress;
    QPushButton* cancel;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ShowSelection();
    void UpdateSizes();
    int RoomForSizes() const;

    const kirto::ShownDocument& shown_;
    std::shared_ptr<const kirto::PixelBudget> memory_;  // null: sizes are not told
    std::unique_ptr<kirto::SavedSizeMeter> meter_;      // null like that
};
