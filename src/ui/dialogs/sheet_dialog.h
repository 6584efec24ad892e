#pragma once

#include "animation/animation.h"
#include "kit/translator_roster.h"
#include "ui/dialogs/form_dialog.h"

namespace kirto {

// Asks for the file and the layout of a sheet of the selected frames, or of all where only one is
// selected. Opens beside its parent window, hands the command to the receiver when the user has
// chosen "OK", and deletes itself when it is closed. shown: as the user sees it, with at least one
// frame. The roster outlives the dialog. GUI thread.
void AskForSheet(const Animation& shown, const BTranslatorRoster& roster, QWidget* parent,
                 FormDialog::Receiver receive);

}  // namespace kirto
