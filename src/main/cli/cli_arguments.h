#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/types.h"

namespace kirto {

// The program's exit statuses.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;

// One operation of the command line: its option ("--open") and the option's value, empty for an
// option without one.
struct CliOperation {
    std::string option;
    std::string value;
};

// What the command line asks for: operations in their order, and what holds for the whole run.
struct CliArguments {
    std::vector<CliOperation> operations;
    bool salvage = false;
    bool quiet = false;
    bool if_newer = false;               // than what was saved before
    bool json_errors = false;            // on standard error
    int retry_status = kExitFailed;      // where another try may succeed
    bool verify = false;                 // animations that were saved
    std::optional<uint64> memory_limit;  // bytes
    std::optional<int32> threads;        // 1 to kMostThreads
    std::string format;                  // of frames as images; empty: by their extension
};

// Reads the command line. An exit status means that the program ends with it at once: help or the
// version was asked for and printed, or the usage is wrong and the reason is on standard error.
std::optional<int> ParseArguments(int argc, const char* const* argv, CliArguments* arguments);

}  // namespace kirto
