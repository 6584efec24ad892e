#include "app/recovery/recovery_schedule.h"

#include <gtest/gtest.h>

namespace kirto::test {
namespace {

using std::chrono::seconds;

constexpr RecoverySchedule::Time kStart{};

TEST(RecoverySchedule, NothingIsDueBeforeAChange) {
    EXPECT_EQ(RecoverySchedule(seconds(20)).Due(), std::nullopt);
}

TEST(RecoverySchedule, AChangeIsDueAfterTheDelay) {
    RecoverySchedule schedule(seconds(20));
    schedule.Changed(kStart);
    EXPECT_EQ(schedule.Due(), kStart + seconds(20));
}

TEST(RecoverySchedule, EachChangePutsItOff) {
    RecoverySchedule schedule(seconds(20));
    schedule.Changed(kStart);
    schedule.Changed(kStart + seconds(15));
    EXPECT_EQ(schedule.Due(), kStart + seconds(35));
}

TEST(RecoverySchedule, ChangesWithoutAPauseDoNotPutItOffForEver) {
    RecoverySchedule schedule(seconds(20));
    for (int i = 0; i < 30; ++i)
        schedule.Changed(kStart + seconds(10 * i));
    EXPECT_EQ(schedule.Due(), kStart + seconds(120));
}

TEST(RecoverySchedule, AnewAfterItIsCleared) {
    RecoverySchedule schedule(seconds(20));
    schedule.Changed(kStart);
    schedule.Clear();
    EXPECT_EQ(schedule.Due(), std::nullopt);
    schedule.Changed(kStart + seconds(500));
    EXPECT_EQ(schedule.Due(), kStart + seconds(520));
}

}  // namespace
}  // namespace kirto::test
