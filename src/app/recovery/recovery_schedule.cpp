#include "app/recovery/recovery_schedule.h"

#include <algorithm>

namespace kirto {

void RecoverySchedule::Changed(Time now) {
    if (!first_change_) first_change_ = now;
    last_change_ = now;
}

std::optional<RecoverySchedule::Time> RecoverySchedule::Due() const {
    if (!first_change_) return std::nullopt;
    return std::min(last_change_ + delay_, *first_change_ + kPatience * delay_);
}

}  // namespace kirto
