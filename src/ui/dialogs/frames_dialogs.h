// The dialogs that ask for a number or two before several frames are selected, merged or timed.
// Each opens beside its parent window, hands the command to the receiver when the user has chosen
// "OK", and deletes itself when it is closed. GUI thread.
#pragma once

#include "animation/animation.h"
#include "ui/dialogs/form_dialog.h"

namespace kirto {

// shown: what the user sees while the dialog opens; it may differ later.
void AskForEveryNth(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForRange(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForFrame(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForDropping(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForTolerance(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
void AskForPlace(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
// in_seconds: the unit of pause lengths.
void AskForPause(const Animation& shown, bool in_seconds, QWidget* parent,
                 FormDialog::Receiver receive);

}  // namespace kirto
