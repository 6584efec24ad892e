#include "formats/gif/index_memo.h"

#include <gtest/gtest.h>
#include <random>

namespace kirto::test {

namespace {

uint8 IndexFor(uint32 key) {
    return static_cast<uint8>(key * 7 + (key >> 8) * 5 + (key >> 16));
}

}  // namespace

TEST(IndexMemo, LooksUpAColorOnce) {
    IndexMemo memo;
    int looked_up = 0;
    const auto look_up = [&looked_up] {
        ++looked_up;
        return uint8{9};
    };

    EXPECT_EQ(memo.IndexOf(0, look_up), 9);
    EXPECT_EQ(memo.IndexOf(0, look_up), 9);

    EXPECT_EQ(looked_up, 1);
}

TEST(IndexMemo, NeverTakesOneColorForAnother) {
    std::mt19937 random(51);
    IndexMemo memo;
    for (const uint32 mask : {0x0F0F0FU, 0xFFFFFFU}) {
        for (int i = 0; i < 300000; ++i) {
            const uint32 key = static_cast<uint32>(random()) & mask;
            ASSERT_EQ(memo.IndexOf(key, [key] { return IndexFor(key); }), IndexFor(key));
        }
    }
}

TEST(IndexMemo, ForgetsEverythingHoweverOftenItIsCleared) {
    IndexMemo memo;
    for (int32 times = 0; times < 1000; ++times) {
        const uint8 index = static_cast<uint8>(times);
        // Some colors stay away for long.
        for (uint32 key = 0; key < 300; key += 1 + static_cast<uint32>(times % 255 * 200))
            ASSERT_EQ(memo.IndexOf(key, [index] { return index; }), index) << times;
        memo.Clear();
    }
}

TEST(IndexMemo, IsNotReadyWithoutMemory) {
    for (const int64 call : {1, 2}) {
        const AllocationFault fault(call);
        IndexMemo memo;
        memo.Clear();
        EXPECT_FALSE(memo.Ready());
    }
    EXPECT_TRUE(IndexMemo().Ready());
}

}  // namespace kirto::test
