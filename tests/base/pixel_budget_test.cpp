#include "base/pixel_budget.h"

#include <gtest/gtest.h>
#include <limits>
#include <thread>
#include <vector>

namespace kirto::test {

TEST(PixelBudget, ReservesUpToItsLimitExactly) {
    PixelBudget budget(100);
    EXPECT_TRUE(budget.Reserve(60));
    EXPECT_TRUE(budget.Reserve(40));
    EXPECT_FALSE(budget.Reserve(1));
    EXPECT_EQ(budget.Used(), 100u);
}

TEST(PixelBudget, TellsWhatIsLeftAndNothingWhereTheLimitWasLoweredBelowWhatIsUsed) {
    PixelBudget budget(100);
    EXPECT_EQ(budget.Left(), 100u);
    EXPECT_TRUE(budget.Reserve(60));
    EXPECT_EQ(budget.Left(), 40u);
    budget.SetLimit(50);
    EXPECT_EQ(budget.Left(), 0u);
}

TEST(PixelBudget, ARefusedReservationChangesNothing) {
    PixelBudget budget(100);
    EXPECT_FALSE(budget.Reserve(101));
    EXPECT_EQ(budget.Used(), 0u);
}

TEST(PixelBudget, ReleasedBytesCanBeReservedAgain) {
    PixelBudget budget(100);
    EXPECT_TRUE(budget.Reserve(100));
    budget.Release(30);
    EXPECT_FALSE(budget.Reserve(31));
    EXPECT_TRUE(budget.Reserve(30));
}

TEST(PixelBudget, SumsPast64BitsAreRefused) {
    PixelBudget budget(std::numeric_limits<uint64>::max());
    EXPECT_TRUE(budget.Reserve(10));
    EXPECT_FALSE(budget.Reserve(std::numeric_limits<uint64>::max() - 9));
}

TEST(PixelBudget, ALowerLimitAppliesToLaterReservationsOnly) {
    PixelBudget budget(100);
    EXPECT_TRUE(budget.Reserve(80));
    budget.SetLimit(50);
    EXPECT_EQ(budget.Limit(), 50u);
    EXPECT_EQ(budget.Used(), 80u);
    EXPECT_FALSE(budget.Reserve(1));
    budget.Release(80);
    EXPECT_TRUE(budget.Reserve(50));
}

TEST(PixelBudget, TheDefaultLimitIsAtMostTwoGiB) {
    EXPECT_GT(PixelBudget::DefaultLimit(), 0u);
    EXPECT_LE(PixelBudget::DefaultLimit(), uint64{2} << 30);
    EXPECT_EQ(PixelBudget().Limit(), PixelBudget::DefaultLimit());
}

TEST(PixelBudget, ThreadsNeverReserveMoreThanTheLimitTogether) {
    PixelBudget budget(1000);
    std::atomic<int> granted = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 500; ++round) {
                if (budget.Reserve(1)) ++granted;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(granted, 1000);
    EXPECT_EQ(budget.Used(), 1000u);
}

}  // namespace kirto::test
