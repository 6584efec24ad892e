#include "base/text.h"

#include <cstdio>

namespace kirto {

size_t Utf8SequenceLength(std::string_view text) {
    const auto byte = [&](size_t i) { return static_cast<uint8>(text[i]); };
    const uint8 lead = byte(0);
    if (lead < 0x80) return 1;
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return 0;
    }
    const uint8 second = byte(1);
    const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool surrogate = lead == 0xED && second >= 0xA0;
    const bool too_large = lead == 0xF4 && second >= 0x90;
    return overlong || surrogate || too_large ? 0 : length;
}

std::string FormatV(const char* format, va_list arguments) {
    va_list copy;
    va_copy(copy, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    if (length <= 0) return {};
    std::string text(static_cast<size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

std::string Format(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::string text = FormatV(format, arguments);
    va_end(arguments);
    return text;
}

std::string_view CutUtf8(std::string_view text, size_t max_bytes) {
    if (text.size() <= max_bytes) return text;
    size_t end = 0;
    while (end < max_bytes) {
        const size_t length = Utf8SequenceLength(text.substr(end));
        const size_t step = length == 0 ? 1 : length;
        if (end + step > max_bytes) break;
        end += step;
    }
    return text.substr(0, end);
}

std::string_view WithoutClosingSlashes(std::string_view path) {
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    return path;
}

bool IsValidUtf8(std::string_view text) {
    while (!text.empty()) {
        const size_t length = Utf8SequenceLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

}  // namespace kirto
