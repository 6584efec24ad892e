// Texts that come from files, such as names and comments, as a terminal may show them: a terminal
// obeys control characters, so they could change its title, its screen or what seems to be said.
#pragma once

#include <string>
#include <string_view>

#include "base/types.h"

namespace kirto {

// What a terminal is shown of a text at most, in bytes.
inline constexpr size_t kMostTerminalBytes = 4096;

// The text with control characters, and bytes that are not UTF-8, as "\x1b". Of a longer text than
// that only the start, and how much is missing; left_out is what the caller has left out already.
// line_break stands for each line break; an empty one shows them as "\x0a".
std::string TerminalText(std::string_view text, std::string_view line_break = {},
                         size_t left_out = 0);

}  // namespace kirto
