#include "main/cli/progress_line.h"

#include <cstdio>
#include <unistd.h>

#include "base/terminal_text.h"
#include "document/command_codes.h"

namespace kirto {

ProgressLine::ProgressLine(bool enabled) : enabled_(enabled && isatty(STDERR_FILENO)) {}

ProgressLine::~ProgressLine() {
    Clear();
}

status_t ProgressLine::Post(BMessage message, handler_token) {
    std::string text;
    if (!enabled_ || message.what != kStatusUpdate) return B_OK;
    if (message.FindString("text", &text) != B_OK) return B_OK;
    std::fprintf(stderr, "\r\033[K%s", TerminalText(text).c_str());
    std::fflush(stderr);
    shown_ = true;
    return B_OK;
}

void ProgressLine::Clear() {
    if (shown_.exchange(false)) std::fputs("\r\033[K", stderr);
}

}  // namespace kirto
