// The dialogs that ask for what an edit of pictures needs. Each opens beside its parent window,
// hands the command to the receiver when the user has chosen "OK", and deletes itself when it is
// closed. GUI thread.
#pragma once

#include "animation/animation.h"
#include "ui/dialogs/form_dialog.h"

namespace kirto {

// shown: what the user sees while the dialog opens, with at least one frame; it may differ later.

// Of all frames and the canvas.
void AskForSize(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForCanvas(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
// Of the selected frames.
void AskForFit(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForColors(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForOpacity(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForOverlay(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);

}  // namespace kirto
