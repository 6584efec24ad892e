#pragma once

#include <QGroupBox>

#include "ui/controls.h"
#include "ui/shown_document.h"

// The panel of the global palette and its special indices. GUI thread.
class PaletteView : public QGroupBox {
  public:
    // shown outlives the panel.
    PaletteView(const kirto::ShownDocument& shown, const BMessenger& window,
                QWidget* parent = nullptr);

    void UpdateDisplay();
    // Shows the settings' default palette choices.
    void ResetDisplay();
    // Greys are not dithered: their box is off and can't be ticked; other kinds leave it as it is.
    void AllowDither(bool allow);

    QComboBox* menu;
    QCheckBox* dither;
    kirto::TextControl* background_index;
    QCheckBox* transparent;
    kirto::TextControl* transparent_index;

  private:
    const kirto::ShownDocument& shown_;
};
