#pragma once

#include <QGroupBox>

#include "ui/controls.h"
#include "ui/shown_document.h"

// The panel of the animation's size, pause and loop. Its controls send their commands to the
// window, which checks what was typed. GUI thread.
class GlobalView : public QGroupBox {
  public:
    // shown outlives the panel.
    GlobalView(const kirto::ShownDocument& shown, const BMessenger& window,
               QWidget* parent = nullptr);

    // Shows the document's state; a field that the user is typing in is left alone.
    void UpdateDisplay();
    // Shows the state of an empty document, from the settings' defaults.
    void ResetDisplay();

    kirto::TextControl* width;
    kirto::TextControl* height;
    QCheckBox* pause;
    kirto::TextControl* pause_length;
    QCheckBox* loop;
    kirto::TextControl* loop_count;

  private:
    const kirto::ShownDocument& shown_;
};
