#include "kit/watched_input.h"

#include <algorithm>

namespace kirto {

bool WatchedInput::Read(void* buffer, size_t size) {
    // What a slow disk reads before the work may stop.
    constexpr size_t kBytesAtOnce = 1 << 20;
    auto* target = static_cast<uint8*>(buffer);
    for (size_t left = size; left > 0 && !work_.StopRequested();) {
        const size_t count = std::min(left, kBytesAtOnce);
        if (!file_.ReadExactly(target, count)) return false;
        work_.Report(file_.Position(), file_.Size());
        target += count;
        left -= count;
    }
    return !work_.StopRequested();
}

size_t WatchedInput::ReadUpTo(void* buffer, size_t size) {
    if (work_.StopRequested()) return 0;
    const int64 count = file_.Read(buffer, size);
    work_.Report(file_.Position(), file_.Size());
    return count > 0 && !work_.StopRequested() ? static_cast<size_t>(count) : 0;
}

}  // namespace kirto
