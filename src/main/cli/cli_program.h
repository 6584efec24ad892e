#pragma once

#include "app/export/fit_under.h"
#include "kit/translator_roster.h"
#include "main/cli/caption.h"
#include "main/cli/cli_arguments.h"

namespace kirto {

// Makes the process ready for whatever readers and terminals do. First of all in main().
void PrepareCliProcess();
// Does what the command line asks for, with the roster's image formats, and returns the process's
// exit status. Ctrl-C and SIGTERM end the work in hand; a second one ends the process.
// draw_caption, exporter: called on the caller's thread, if a text or an export is asked for at
// all.
int RunCliProgram(CliArguments arguments, BTranslatorRoster& roster,
                  CaptionDrawer draw_caption = {}, Exporter exporter = {});

}  // namespace kirto
