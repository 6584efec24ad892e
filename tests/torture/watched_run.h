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

    // command: a path and arguments. Its output is dropped. A program that is not done in two
    // minutes is killed.
    static WatchedRun Of(const std::vector<std::string>& command);
};

}  // namespace kirto::test
