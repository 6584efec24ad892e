// Waiting until another thread waits for something itself, as the system knows it.
#pragma once

#include <fstream>
#include <string>
#include <thread>
#include <unistd.h>

namespace kirto::test {

// The number by which the system knows the calling thread.
inline pid_t ThreadNumber() {
    return gettid();
}

// True when that thread of this process sleeps, or has ended.
inline bool IsAsleep(pid_t thread) {
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string text;
    std::getline(file, text);
    // The state stands behind the name, which is in brackets and may hold any character.
    const size_t bracket = text.rfind(')');
    if (bracket == std::string::npos) return true;
    const char state = text.at(bracket + 2);
    return state == 'S' || state == 'Z' || state == 'X';
}

inline void WaitUntilAsleep(pid_t thread) {
    while (!IsAsleep(thread))
        std::this_thread::yield();
}

}  // namespace kirto::test
