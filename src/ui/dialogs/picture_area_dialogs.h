// The dialogs in which something is chosen on the picture itself. Each opens beside its parent
// window, hands the command to the receiver when the user has chosen it, and deletes itself when it
// is closed. GUI thread.
#pragma once

#include "animation/animation.h"
#include "ui/dialogs/form_dialog.h"

namespace kirto {

// shown: what the user sees while the dialog opens, with at least one frame; it may differ later.

// A part of the canvas, drawn, typed or found; of all frames.
void AskForCrop(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
// A color, clicked or typed; of the selected frames.
void AskForTransparentColor(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);

}  // namespace kirto
