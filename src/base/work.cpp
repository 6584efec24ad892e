#include "base/work.h"

#include <utility>

namespace kirto {

Work::Work(Reporter reporter) : reporter_(std::move(reporter)) {}

void Work::Begin() {
    running_ = ++pieces_;
    done_ = 0;
    total_ = 0;
    reported_ = false;
    next_report_ = Clock::now() + kFirstReport;
}

void Work::End() {
    running_ = 0;
    next_report_ = Clock::time_point::max();
}

void Work::Report(int64 done, int64 total) {
    done_ = done;
    total_ = total;
    const Clock::time_point now = Clock::now();
    if (now < next_report_) return;
    next_report_ = now + kNextReport;
    reported_ = true;
    if (reporter_) reporter_(running_, done, total);
}

}  // namespace kirto
