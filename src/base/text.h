// Small helpers for byte strings.
#pragma once

#include <cstdarg>
#include <string>
#include <string_view>

#include "base/types.h"

namespace kirto {

// printf into a string of whatever length it needs.
[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);
[[gnu::format(printf, 1, 0)]] std::string FormatV(const char* format, va_list arguments);

// The longest prefix of at most max_bytes bytes that does not end inside a UTF-8 sequence. Bytes
// that are no UTF-8 count as characters of one byte.
std::string_view CutUtf8(std::string_view text, size_t max_bytes);

// The path without the slashes at its end; the first byte stays, so "/" does.
std::string_view WithoutClosingSlashes(std::string_view path);

// True when text contains part anywhere.
inline bool Contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// Length of the well-formed UTF-8 sequence at the start of the text, or 0. The text isn't empty.
size_t Utf8SequenceLength(std::string_view text);

// True when the bytes are well-formed UTF-8 (no overlong forms, no surrogates).
bool IsValidUtf8(std::string_view text);

}  // namespace kirto
