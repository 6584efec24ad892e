#include "base/line_output.h"

#include <algorithm>
#include <unistd.h>

#include "base/terminal_text.h"

namespace kirto {

LineOutput::LineOutput(std::FILE* stream)
    : stream_(stream), terminal_(isatty(fileno(stream)) != 0) {}

void LineOutput::Write(std::string_view text) {
    const std::lock_guard lock(mutex_);
    if (!terminal_) {
        std::fwrite(text.data(), 1, text.size(), stream_);
        return;
    }
    const bool ends_line = text.ends_with('\n');
    if (ends_line) text.remove_suffix(1);
    const size_t kept = std::min(text.size(), kMostTerminalBytes - line_.size());
    line_ += text.substr(0, kept);
    dropped_ += text.size() - kept;
    if (ends_line) Show();
}

void LineOutput::EndLine() {
    const std::lock_guard lock(mutex_);
    if (!line_.empty()) Show();
}

void LineOutput::Show() {
    const std::string shown = TerminalText(line_, "\n    ", dropped_) + "\n";
    std::fwrite(shown.data(), 1, shown.size(), stream_);
    line_.clear();
    dropped_ = 0;
}

}  // namespace kirto
