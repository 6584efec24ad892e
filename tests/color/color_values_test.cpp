#include "color/color_values.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kirto::test {

namespace {

// Different colors in no order, the same in every run.
uint32 Scattered(uint32 number) {
    return number * 0x3C6EF35FU & 0xFFFFFFU;
}

// Adds each color with its number in the row as its value; false when one finds no memory.
bool AddAll(ColorValues& values, const std::vector<uint32>& keys) {
    for (uint32 i = 0; i < keys.size(); ++i) {
        ColorValues::Item* item = values.FindOrAdd(keys[i]);
        if (!item) return false;
        item->value = i;
    }
    return true;
}

void ExpectAll(ColorValues& values, const std::vector<uint32>& keys) {
    ASSERT_EQ(values.Items().size(), keys.size());
    for (uint32 i = 0; i < keys.size(); ++i) {
        ASSERT_EQ(values.Items()[i].key, keys[i]);
        ASSERT_EQ(values.FindOrAdd(keys[i]), &values.Items()[i]);
        ASSERT_EQ(values.Items()[i].value, i);
    }
    EXPECT_EQ(values.Items().size(), keys.size());
}

}  // namespace

TEST(ColorValues, StartEmpty) {
    const ColorValues values;

    EXPECT_TRUE(values.Ready());
    EXPECT_TRUE(values.Items().empty());
}

TEST(ColorValues, GiveNewColorsZero) {
    ColorValues values;

    const ColorValues::Item* item = values.FindOrAdd(0xFFFFFF);

    ASSERT_TRUE(item);
    EXPECT_EQ(item->key, 0xFFFFFFU);
    EXPECT_EQ(item->value, 0U);
}

TEST(ColorValues, KeepTheOrderInWhichColorsCameAtEverySize) {
    for (const uint32 count : {1U, 512U, 513U, 3000U, 40000U, 530000U}) {
        std::vector<uint32> keys;
        for (uint32 i = 0; i < count; ++i)
            keys.push_back(Scattered(i));
        ColorValues values;

        ASSERT_TRUE(AddAll(values, keys));

        ExpectAll(values, keys);
    }
}

TEST(ColorValues, CountLikeATableOfAllColors) {
    std::mt19937 random(31);
    // Few colors, many, and so many that each has a slot of its own.
    for (const uint32 mask : {0x030303U, 0x3F3F3FU, 0xFFFFFFU}) {
        std::vector<uint32> counts(size_t{1} << 24);
        std::vector<uint32> order;
        ColorValues values;
        for (int i = 0; i < 2500000; ++i) {
            const uint32 key = static_cast<uint32>(random()) & mask;
            if (counts[key]++ == 0) order.push_back(key);
            values.Prefetch(key);
            ++values.FindOrAdd(key)->value;
        }
        ASSERT_EQ(values.Items().size(), order.size());
        for (size_t i = 0; i < order.size(); ++i) {
            const ColorValues::Item& item = values.Items()[i];
            if (item.key != order[i] || item.value != counts[order[i]]) FAIL() << "color " << i;
        }
    }
}

TEST(ColorValues, FindColorsThatAreChosenToMeetInOneSlot) {
    // 0x8B2F51 times the factor of the table is 1, modulo 16 million.
    std::vector<uint32> keys;
    for (uint32 product = 0; product < 500; ++product)
        keys.push_back(product * 0x8B2F51U & 0xFFFFFFU);
    ColorValues values;
    int64 calls = 0;
    {
        const AllocationFault fault(1000);
        ASSERT_TRUE(AddAll(values, keys));
        calls = fault.Calls();
    }

    // The table grew although it was not full.
    EXPECT_EQ(calls, 1);
    ExpectAll(values, keys);
}

TEST(ColorValues, AreNotReadyWithoutMemory) {
    for (const int64 call : {1, 2}) {
        const AllocationFault fault(call);
        ColorValues values;

        EXPECT_FALSE(values.Ready());
        EXPECT_EQ(values.FindOrAdd(1), nullptr);
    }
}

TEST(ColorValues, KeepWhatTheyHaveWhenMemoryGetsShort) {
    for (const int64 call : {1, 2}) {
        ColorValues values;
        std::vector<uint32> keys;
        for (uint32 i = 0; i < 512; ++i)
            keys.push_back(Scattered(i));
        ASSERT_TRUE(AddAll(values, keys));
        const AllocationFault fault(call);

        EXPECT_EQ(values.FindOrAdd(Scattered(512)), nullptr);

        ExpectAll(values, keys);
    }
}

TEST(ColorValues, DoNotGrowOnceTheWorkIsStopped) {
    Work work;
    work.Begin();
    ColorValues values(&work);
    std::vector<uint32> keys;
    for (uint32 i = 0; i < 512; ++i)
        keys.push_back(Scattered(i));
    ASSERT_TRUE(AddAll(values, keys));
    work.Stop(work.Running());

    EXPECT_EQ(values.FindOrAdd(Scattered(512)), nullptr);
    EXPECT_FALSE(values.Ready());
    EXPECT_EQ(values.FindOrAdd(Scattered(0)), nullptr);
}

}  // namespace kirto::test
