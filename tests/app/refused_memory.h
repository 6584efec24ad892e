// The program's memory as a test wants it: any allocation may be refused, of the standard library's
// or of the C library's functions that our own code calls. What other libraries take is out of
// reach. Linked into programs of its own, as it replaces operator new.
#pragma once

#include <cstddef>

#include "base/types.h"

namespace kirto::test {

// While alive, refuses allocations of threads other than the one that made it. One at a time.
class RefusedMemory {
  public:
    struct Which {
        int64 first = 0;           // 1-based, of those that are large enough; 0: none
        bool all_later = false;    // else that one only
        size_t least = 1;          // bytes
        bool marked_only = false;  // of threads that called MarkThread()
    };
    explicit RefusedMemory(const Which& which);
    ~RefusedMemory();
    RefusedMemory(const RefusedMemory&) = delete;
    RefusedMemory& operator=(const RefusedMemory&) = delete;

    // Allocations so far that are large enough.
    static int64 Count();
    static int64 Refused();
    // The calling thread is one whose small allocations are refused as well.
    static void MarkThread();
};

}  // namespace kirto::test
