#include "base/allocation.h"

#include <gtest/gtest.h>
#include <limits>
#include <thread>

namespace kirto::test {

TEST(AllocateZeroed, GivesZeroFilledBytes) {
    const auto array = AllocateArray<uint32>(1000);
    ASSERT_NE(array, nullptr);
    for (size_t i = 0; i < 1000; ++i)
        EXPECT_EQ(array[i], 0u);
}

TEST(AllocateZeroed, RefusesProductsThatOverflow) {
    EXPECT_EQ(AllocateZeroed(std::numeric_limits<size_t>::max() / 2, 4), nullptr);
    EXPECT_EQ(AllocateZeroed(4, std::numeric_limits<size_t>::max() / 2), nullptr);
}

TEST(AllocateUnfilled, RefusesProductsThatOverflow) {
    EXPECT_EQ(AllocateUnfilled(std::numeric_limits<size_t>::max() / 2, 4), nullptr);
    EXPECT_EQ(AllocateUnfilled(4, std::numeric_limits<size_t>::max() / 2), nullptr);
}

TEST(AllocateUnfilled, FailsWhereAFaultSaysSo) {
    const AllocationFault fault(2);
    EXPECT_NE(AllocateUnfilledArray<uint8>(10), nullptr);
    EXPECT_EQ(AllocateUnfilledArray<uint8>(10), nullptr);
}

TEST(AllocationFault, FailsTheNthAllocationAndAllLaterOnes) {
    const AllocationFault fault(2);
    EXPECT_NE(AllocateArray<uint8>(10), nullptr);
    EXPECT_EQ(AllocateArray<uint8>(10), nullptr);
    EXPECT_TRUE(AllocationShouldFail());
    EXPECT_EQ(fault.Calls(), 3);
}

TEST(AllocationFault, EndsWithItsLifetime) {
    {
        const AllocationFault fault(1);
        EXPECT_TRUE(AllocationShouldFail());
    }
    EXPECT_FALSE(AllocationShouldFail());
    EXPECT_NE(AllocateArray<uint8>(10), nullptr);
}

TEST(AllocationFault, CountsFromItsConstruction) {
    { const AllocationFault fault(1); }
    const AllocationFault fault(100);
    EXPECT_EQ(fault.Calls(), 0);
}

TEST(AllocationFault, LeavesOtherThreadsAlone) {
    const AllocationFault fault(1);
    bool failed = true;
    std::thread([&failed] { failed = AllocationShouldFail(); }).join();
    EXPECT_FALSE(failed);
    EXPECT_EQ(fault.Calls(), 0);
}

}  // namespace kirto::test
