// The number of threads for the length of a test.
#pragma once

#include "base/thread_count.h"

namespace kirto::test {

// What must not depend on how many threads work.
inline constexpr int32 kThreadCounts[] = {1, 2, 3, 16};

// Sets the number of threads until the end of the scope; 0 for the default.
class ScopedThreads {
  public:
    explicit ScopedThreads(int32 count) { SetThreadCount(count); }
    ~ScopedThreads() { SetThreadCount(0); }
    ScopedThreads(const ScopedThreads&) = delete;
    ScopedThreads& operator=(const ScopedThreads&) = delete;
};

}  // namespace kirto::test
