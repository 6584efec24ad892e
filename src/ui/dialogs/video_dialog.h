#pragma once

#include "ui/dialogs/form_dialog.h"

namespace kirto {

// Asks which part of a video becomes frames: its times, how many frames a second, their size, and
// a rectangle of its pictures. The video plays in it. Opens over its parent window, hands the
// command to the receiver when the user has chosen "OK", and deletes itself when it is closed.
// command: kOpenFile without "video". GUI thread.
void AskForVideoPart(const BMessage& command, QWidget* parent, FormDialog::Receiver receive);

}  // namespace kirto
