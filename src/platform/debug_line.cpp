#include "platform/debug_line.h"

#include <cstdarg>
#include <cstdio>
#include <mutex>

#include "platform/text.h"

namespace kirto {

namespace {

std::mutex& SinkMutex() {
    static std::mutex mutex;
    return mutex;
}

DebugSink& Sink() {
    static DebugSink sink;
    return sink;
}

}  // namespace

void DebugLine(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const std::string text = FormatV(format, arguments);
    va_end(arguments);
    const std::lock_guard lock(SinkMutex());
    if (Sink()) {
        Sink()(text);
    } else {
        std::fwrite(text.data(), 1, text.size(), stdout);
    }
}

DebugSink InstallDebugSink(DebugSink sink) {
    const std::lock_guard lock(SinkMutex());
    std::swap(Sink(), sink);
    return sink;
}

}  // namespace kirto
