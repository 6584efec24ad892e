#pragma once

#include "ui/panels/field_panel.h"

// The panel of the global palette and its special indices. GUI thread.
class PaletteView : public kirto::FieldPanel {
  public:
    // shown outlives the panel.
    PaletteView(const kirto::ShownDocument& shown, const BMessenger& window,
                QWidget* parent = nullptr);

    // Greys are not dithered: their box is off and can't be ticked; other kinds leave it as it is.
    void AllowDither(bool allow);

    QComboBox* menu;
    QCheckBox* dither;
    kirto::TextControl* background_index;
    QCheckBox* transparent;
    kirto::TextControl* transparent_index;

  private:
    void Show(const kirto::Animation& animation, bool end_edits) override;
    bool ChooseKind(uint32 command) override;
};
