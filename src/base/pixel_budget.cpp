#include "base/pixel_budget.h"

#include <algorithm>
#include <unistd.h>

namespace kirto {

bool PixelBudget::Reserve(uint64 bytes) {
    while (!TryReserve(bytes)) {
        if (bytes > limit_ || !Relieve()) return false;
    }
    return true;
}

void PixelBudget::SetReliever(std::function<bool()> reliever) {
    const std::lock_guard lock(reliever_mutex_);
    reliever_ = std::move(reliever);
}

bool PixelBudget::Relieve() {
    const std::lock_guard lock(reliever_mutex_);
    return reliever_ && reliever_();
}

bool PixelBudget::TryReserve(uint64 bytes) {
    uint64 used = used_;
    do {
        const uint64 limit = limit_;
        if (used > limit || bytes > limit - used) return false;
    } while (!used_.compare_exchange_weak(used, used + bytes));
    return true;
}

uint64 PixelBudget::Left() const {
    const uint64 limit = limit_;
    const uint64 used = used_;
    return limit > used ? limit - used : 0;
}

void PixelBudget::Release(uint64 bytes) {
    used_ -= bytes;
}

uint64 PixelBudget::DefaultLimit() {
    constexpr uint64 kTwoGiB = uint64{2} << 30;
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long page_size = sysconf(_SC_PAGESIZE);
    if (pages <= 0 || page_size <= 0) return kTwoGiB;
    return std::min(kTwoGiB, static_cast<uint64>(pages) * static_cast<uint64>(page_size) / 4);
}

}  // namespace kirto
