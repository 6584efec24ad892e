#pragma once

#include "ui/panels/field_panel.h"

// The panel of the animation's size, pause and loop. GUI thread.
class GlobalView : public kirto::FieldPanel {
  public:
    // shown outlives the panel.
    GlobalView(const kirto::ShownDocument& shown, const BMessenger& window,
               QWidget* parent = nullptr);

    kirto::TextControl* width;
    kirto::TextControl* height;
    QCheckBox* pause;
    kirto::TextControl* pause_length;
    QCheckBox* loop;
    kirto::TextControl* loop_count;
};
