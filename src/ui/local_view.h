#pragma once

#include <QGroupBox>

#include "ui/controls.h"
#include "ui/shown_document.h"

// The panel of the current frame, and the switch between the two ways of showing frames. GUI
// thread.
class LocalView : public QGroupBox {
  public:
    // shown outlives the panel.
    LocalView(const kirto::ShownDocument& shown, const BMessenger& window,
              QWidget* parent = nullptr);

    // Shows the current frame; without one, as ResetDisplay.
    void UpdateDisplay();
    // Shows that there is no frame, and disables the frame's controls.
    void ResetDisplay();
    void ShowMode(bool frame_list);

    QLabel* frame_name;
    QLabel* frame_size;
    QLabel* frame_colors;
    kirto::TextControl* x_offset;
    kirto::TextControl* y_offset;
    QCheckBox* pause;
    kirto::TextControl* pause_length;
    QCheckBox* palette;
    QComboBox* palette_menu;
    QRadioButton* thumbnail_mode;
    QRadioButton* frame_list_mode;

  private:
    void MakeControls(const BMessenger& window);
    void DescribeControls();
    void ShowFrame(const Frame& frame);
    void EnableFrameControls(bool enable);

    const kirto::ShownDocument& shown_;
};
