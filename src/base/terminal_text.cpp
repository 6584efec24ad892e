#include "base/terminal_text.h"

#include "base/text.h"

namespace kirto {

namespace {

// The length of the character at the start of the text that can be shown as it is; 0 without one.
size_t ShownLength(std::string_view text) {
    const size_t length = Utf8SequenceLength(text);
    const auto first = static_cast<uint8>(text[0]);
    if (length == 1) return first < 0x20 || first == 0x7F ? 0 : 1;
    // The control characters U+0080 to U+009F.
    const bool control = length == 2 && first == 0xC2 && static_cast<uint8>(text[1]) < 0xA0;
    return control ? 0 : length;
}

}  // namespace

std::string TerminalText(std::string_view text, std::string_view line_break, size_t left_out) {
    std::string shown;
    std::string_view rest = CutUtf8(text, kMostTerminalBytes);
    const size_t missing = left_out + text.size() - rest.size();
    while (!rest.empty()) {
        const size_t length = ShownLength(rest);
        if (length > 0) {
            shown += rest.substr(0, length);
        } else if (rest[0] == '\n' && !line_break.empty()) {
            shown += line_break;
        } else {
            shown += Format("\\x%02x", static_cast<uint8>(rest[0]));
        }
        rest.remove_prefix(length > 0 ? length : 1);
    }
    if (missing > 0) shown += Format("... (%zu bytes more)", missing);
    return shown;
}

}  // namespace kirto
