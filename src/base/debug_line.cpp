#include "base/debug_line.h"

#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <utility>

#include "base/line_output.h"
#include "base/text.h"

namespace kirto {

namespace {

struct Output {
    std::mutex mutex;
    DebugSink sink;
    LineOutput lines{stdout};
};

// Never destroyed: threads and objects with static storage may print until the very end.
Output& TheOutput() {
    static Output& output = *new Output;
    return output;
}

thread_local std::string* captured = nullptr;

}  // namespace

DebugLineCapture::DebugLineCapture() : before_(std::exchange(captured, &text_)) {}

DebugLineCapture::~DebugLineCapture() {
    captured = before_;
}

std::string DebugLineCapture::Take() {
    return std::exchange(text_, {});
}

void DebugLine(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::string text = FormatV(format, arguments);
    va_end(arguments);
    if (captured) {
        *captured += text;
        return;
    }
    Output& output = TheOutput();
    const std::lock_guard lock(output.mutex);
    if (output.sink) {
        output.sink(text);
    } else {
        output.lines.Write(text);
    }
}

DebugSink InstallDebugSink(DebugSink sink) {
    Output& output = TheOutput();
    const std::lock_guard lock(output.mutex);
    return std::exchange(output.sink, std::move(sink));
}

}  // namespace kirto
