#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "main/options/option_text.h"

namespace kirto {

// What there is to say about a program in its manual page. Plain text throughout.
struct ProgramText {
    std::string name;      // of the program
    std::string summary;   // without a capital and a full stop
    std::string synopsis;  // what follows the name
    std::vector<std::string> description;
    std::vector<std::span<const OptionText>> options;
    // A heading and its paragraphs each, which follow the options.
    std::vector<std::pair<std::string, std::vector<std::string>>> sections;
    std::vector<std::string> examples;  // command lines
    std::string see_also;               // the other program
};

ProgramText EditorProgramText();
ProgramText CliProgramText();

}  // namespace kirto
