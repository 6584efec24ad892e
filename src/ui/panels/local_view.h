#pragma once

#include "ui/panels/field_panel.h"

// The panel of the current frame, and the switch between the two ways of showing frames. Without a
// frame its controls are disabled. GUI thread.
class LocalView : public kirto::FieldPanel {
  public:
    // shown outlives the panel.
    LocalView(const kirto::ShownDocument& shown, const BMessenger& window,
              QWidget* parent = nullptr);

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
    void AddLabels();
    void AddFields();
    void AddModes();
    // Without a current frame also ends edits.
    void Show(const kirto::Animation& animation, bool end_edits) override;
    bool ChooseKind(uint32 command) override;
};
