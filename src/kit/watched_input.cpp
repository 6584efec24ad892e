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

}  // namespace kirto
