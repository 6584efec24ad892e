#include "main/options/option_text.h"

#include <algorithm>

namespace kirto {

std::string HelpIn(std::span<const OptionText> options, const std::string& name) {
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&name](const OptionText& text) { return text.name == name; });
    return found->help;
}

}  // namespace kirto
