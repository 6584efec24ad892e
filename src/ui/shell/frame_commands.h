// The items of the menus "Edit" and "Animation" that select, merge, time or change several frames.
#pragma once

#include "ui/controls/shown_document.h"
#include "ui/dialogs/form_dialog.h"

namespace kirto {

// Hands the command of the item to the receiver, at once or after a dialog beside the window. There
// are frames. GUI thread.
void ChooseFrames(uint32 item, const ShownDocument& shown, QWidget* window,
                  const FormDialog::Receiver& receive);

}  // namespace kirto
