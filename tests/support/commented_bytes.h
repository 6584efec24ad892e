// Broken files as text that says why they are broken.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/types.h"

namespace kirto::test {

// Turns text into bytes. A word is two hex digits (4C), such a byte with a decimal count (00*300),
// or characters in single quotes ('GIF89a'); '#' starts a comment that reaches to the end of the
// line. Nothing for text that has other words.
std::optional<std::vector<uint8>> AssembleBytes(const std::string& text);

// The values of the comment lines "# KEY: VALUE" of such a text, in order.
std::vector<std::string> NotesIn(const std::string& text, const std::string& key);

}  // namespace kirto::test
