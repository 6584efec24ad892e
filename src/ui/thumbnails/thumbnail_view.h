#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QSlider>
#include <QWidget>

#include "ui/controls/editor.h"
#include "ui/controls/shown_document.h"

class ThumbDrawingView;

namespace kirto {
class RecentView;
class ThumbScrollView;
}  // namespace kirto

// The frame area in thumbnail mode: the grid, and how high its thumbnails are; as long as there are
// none, what a user begins with: recent animations, buttons, and the choice whether animations are
// read and saved as browsers show them. GUI thread.
class ThumbnailView : public QWidget {
  public:
    // shown outlives the view.
    ThumbnailView(const kirto::ShownDocument& shown, const kirto::Editor& editor,
                  const BMessenger& window, QWidget* parent = nullptr);

    // Shows what is shown now, with the current frame in sight if it is another one; the slider
    // takes its range from the settings.
    void UpdateDisplay();
    void ResetDisplay();

    // Shows thumbnails of that height, in pixels, as far as the slider's range allows. Sends
    // nothing.
    void SetHeight(int32 pixels);
    // Pixels.
    int32 SliderValue() const { return slider_->value(); }

    ThumbDrawingView* DrawingView() const { return drawing_view_; }

  private:
    void MakeControls(const BMessenger& window);
    // What a user begins with: shown while there are no frames.
    void MakeBeginning(const BMessenger& window);
    void MakeRecent(const kirto::Editor& editor);
    void MakeFaithfulChoice(const BMessenger& window);
    void ShowBeginning();

    const kirto::ShownDocument& shown_;
    kirto::ThumbScrollView* scroll_view_;
    ThumbDrawingView* drawing_view_;
    QLabel* height_label_;
    QSlider* slider_;
    QWidget* beginning_;
    QLabel* recent_label_ = nullptr;
    kirto::RecentView* recent_ = nullptr;  // null where no files are remembered
    QCheckBox* faithful_;
};
