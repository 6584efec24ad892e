#include "main/manual/program_text.h"

#include "main/cli/cli_options.h"
#include "main/editor/editor_options.h"

namespace kirto {

namespace {

constexpr const char* kSettingsFile =
    "Settings are read from $XDG_CONFIG_HOME/Kirto_settings, by default below ~/.config: a text "
    "file with one setting per line.";

}  // namespace

ProgramText EditorProgramText() {
    ProgramText text;
    text.name = "kirto";
    text.summary = "edit frame animations";
    text.synopsis = "[OPTION]... [FILE]...";
    text.description = {
        "kirto takes an animation apart into frames, lets you change them and their order, pauses, "
        "sizes and palettes, and writes the result as an animated GIF or as a sequence of images.",
        kEditorFiles};
    text.options = {EditorOptions()};
    text.sections = {
        {"EXIT STATUS",
         {"0 when the editor was closed or the picture was written, 1 when that failed, 2 when the "
          "command line is invalid."}},
        {"FILES", {kSettingsFile}}};
    text.examples = {"kirto walk.gif", "kirto --screenshot window.png walk.gif"};
    text.see_also = "kirto-cli";
    return text;
}

ProgramText CliProgramText() {
    ProgramText text;
    text.name = "kirto-cli";
    text.summary = "edit frame animations from the command line";
    text.synopsis = "OPTION...";
    text.description = {
        "kirto-cli does what kirto does, without a window: it opens GIF, FLI, FLC, WebP and APNG "
        "animations "
        "and images, edits them and saves them.",
        kCliOrder};
    text.options = {CliOperations(), CliSettings()};
    text.sections = {
        {"EXIT STATUS",
         {"0 on success; 1 when an operation failed, and those after it were skipped; 2 when the "
          "command line is invalid. With --retry-status N, N where another try may succeed.",
          "Requested output goes to standard output, everything else to standard error."}},
        {"ENVIRONMENT",
         {"KIRTO_THREADS: work with so many threads, where --threads is not given."}},
        {"FILES", {kSettingsFile}}};
    text.examples = {"kirto-cli --open walk.gif --info",
                     "kirto-cli --open walk.gif --reverse --save back.gif",
                     "kirto-cli --open title.flc --loop off --pause 8 --save title.gif"};
    text.see_also = "kirto";
    return text;
}

}  // namespace kirto
