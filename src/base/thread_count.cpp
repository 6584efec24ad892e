#include "base/thread_count.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <thread>

#include "base/number.h"

namespace kirto {

namespace {

std::atomic<int32> g_count = 0;  // 0: not set

}  // namespace

int32 ThreadCount() {
    // Read once: the environment is not to be read while a thread may change it.
    static const int32 default_count = DefaultThreadCount();
    const int32 count = g_count;
    return count > 0 ? count : default_count;
}

void SetThreadCount(int32 count) {
    g_count = std::clamp(count, 0, kMostThreads);
}

int32 DefaultThreadCount() {
    int32 count = 0;
    const char* variable = std::getenv("KIRTO_THREADS");
    if (!variable || !ParseNumber(variable, &count)) {
        count = static_cast<int32>(std::min(std::thread::hardware_concurrency(), 64U));
    }
    return std::clamp(count, 1, kMostThreads);
}

}  // namespace kirto
