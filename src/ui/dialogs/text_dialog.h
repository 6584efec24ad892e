#pragma once

#include "animation/animation.h"
#include "ui/dialogs/form_dialog.h"

namespace kirto {

// Asks for a text, how it looks, where it stands, and how it comes and goes on the selected frames.
// Opens beside its parent window, hands the command to the receiver when the user has chosen "OK",
// and deletes itself when it is closed. shown: as the user sees it, with at least one frame. GUI
// thread.
void AskForText(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);

}  // namespace kirto
