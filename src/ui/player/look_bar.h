#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QWidget>
#include <functional>

#include "ui/player/picture_pane.h"

namespace kirto {

// Chooses how the picture pane shows its frame, and tells what is below the pointer. GUI thread.
class LookBar : public QWidget {
  public:
    // changed: called when the user chooses another look. The pane outlives the bar.
    LookBar(PicturePane& pane, const std::function<void()>& changed, QWidget* parent = nullptr);

    // How much of the frames beside the one that is shown is seen, 0 to 1.
    double OnionOpacity() const;
    bool ShowsPrevious() const;
    bool ShowsNext() const;
    // Frames as they will be saved, not as they are.
    bool ShowsSavedColors() const { return saved_->isChecked(); }

    // Of the pixel below the pointer; empty for none.
    void ShowPixel(const QString& text);
    void ShowZoom();

  private:
    QLayout* MakeLooks(const std::function<void()>& changed);
    QLayout* MakeZoom();

    PicturePane& pane_;
    QComboBox* onion_ = nullptr;
    QSlider* opacity_ = nullptr;
    QCheckBox* saved_ = nullptr;
    QLabel* pixel_ = nullptr;
    QLabel* zoom_ = nullptr;
};

}  // namespace kirto
