// What the options of kirto-cli are called and what they do, for its --help and its manual.
#pragma once

#include <span>

#include "main/options/option_text.h"

namespace kirto {

inline constexpr const char* kCliPurpose = "Edits frame animations from the command line.";

// What holds for the operations together; ends in a line break.
inline constexpr const char* kCliOrder =
    "Options are carried out in the order given, on one animation. Pauses are in hundredths of a\n"
    "second, or in seconds after --set global_pauseinseconds=true.\n"
    "Behind --open, --insert, --insert-animation and --save, - is standard input or output.\n"
    "* Of the selected frames, or of all where only one is selected.\n";

// Those that are carried out in the order given, as --help lists them.
std::span<const OptionText> CliOperations();
// Those that hold for the whole run.
std::span<const OptionText> CliSettings();

}  // namespace kirto
