#include "measurement.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>

namespace kirto::bench {

namespace {

double Seconds(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// A figure of the process's memory, in bytes: "VmRSS:" now, "VmHWM:" at its peak.
int64 Memory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        int64 kibibytes = 0;
        if (word == name && status >> kibibytes) return kibibytes * 1024;
    }
    return 0;
}

// Forgets the peak so far.
void ResetPeak() {
    std::ofstream("/proc/self/clear_refs") << 5;
}

}  // namespace

bool Measurement::Run(const std::function<bool()>& work) {
    for (int32 i = 0; i < repeats_; ++i) {
        ResetPeak();
        const int64 memory = Memory("VmRSS:");
        const double processor = Seconds(CLOCK_PROCESS_CPUTIME_ID);
        const double wall = Seconds(CLOCK_MONOTONIC);
        if (!work()) return false;
        wall_ += Seconds(CLOCK_MONOTONIC) - wall;
        processor_ += Seconds(CLOCK_PROCESS_CPUTIME_ID) - processor;
        peak_ = std::max(peak_, Memory("VmHWM:") - memory);
    }
    return true;
}

void Measurement::Print() const {
    std::printf("{\"processor\": %.9f, \"wall\": %.9f, \"peak\": %lld, \"frames\": %lld",
                processor_ / repeats_, wall_ / repeats_, static_cast<long long>(peak_),
                static_cast<long long>(frames_));
    if (digest_)
        std::printf(", \"digest\": \"%016llx\"", static_cast<unsigned long long>(*digest_));
    if (error_) std::printf(", \"error\": %.6f", *error_);
    std::puts("}");
}

}  // namespace kirto::bench
