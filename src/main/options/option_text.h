#pragma once

#include <span>
#include <string>

namespace kirto {

// An option of a program: what --help says about it, and its manual and the shells' completions.
struct OptionText {
    const char* name;
    const char* value;  // what the value stands for, in brackets where it may be left out; null for
                        // an option without one
    const char* help;
};

// The help of the option with that name, which is among them.
std::string HelpIn(std::span<const OptionText> options, const std::string& name);

}  // namespace kirto
