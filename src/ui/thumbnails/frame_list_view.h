#pragma once

#include <QLabel>
#include <QWidget>

#include "ui/controls/shown_document.h"
#include "ui/thumbnails/frame_list.h"
#include "ui/thumbnails/frame_preview.h"

// The frame area in frame-list mode: the list, its buttons, and the current frame. GUI thread.
class FrameListView : public QWidget {
  public:
    // shown outlives the view.
    FrameListView(const kirto::ShownDocument& shown, const BMessenger& window,
                  QWidget* parent = nullptr);

    void UpdateDisplay();
    // Empties the list and the preview.
    void ResetDisplay();

    FrameList* List() const { return list_; }

  private:
    QLayout* MakeStrip(const BMessenger& window);
    QLayout* MakeButtons(const BMessenger& window);
    QLayout* MakePreview();

    const kirto::ShownDocument& shown_;
    FrameList* list_;
    QLabel* title_;
    kirto::FramePreview* preview_;
};
