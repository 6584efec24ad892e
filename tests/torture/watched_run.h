// Runs a program to its end and tells what it took.
#pragma once

#include <string>
#include <vector>

#include "base/types.h"

namespace kirto::test {

struct WatchedRun {
    int status = -1;      // it ended with; -1: by a signal, or it did not start
    double seconds = 0;   // of all processors, of it and of the processes that it waited for
    int64 kibibytes = 0;  // of memory at its peak
    std::string message;  // that it wrote to standard error

    // What the program may take at most; it is killed, or fails, when it wants more.
    struct Limits {
        unsigned seconds = 120;    // of a processor; ten times that by the clock
        uint64 address_space = 0;  // bytes; 0: as much as there is
    };

    // command: a path and arguments. Its output is dropped.
    static WatchedRun Of(const std::vector<std::string>& command, Limits limits);
};

}  // namespace kirto::test
