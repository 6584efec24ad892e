#include "color/sf_hash.h"

#include <gtest/gtest.h>
#include <vector>

namespace kirto::test {

namespace {

// An item that counts how many of its kind are alive.
struct TrackedItem : HashItem {
    explicit TrackedItem(uint32 item_key, int* alive) : HashItem(item_key), alive_(alive) {
        ++*alive_;
    }
    ~TrackedItem() override { --*alive_; }
    TrackedItem(const TrackedItem&) = delete;
    TrackedItem& operator=(const TrackedItem&) = delete;

  private:
    int* alive_;
};

void Add(SFHash& table, uint32 key, uint32 value = 0) {
    table.AddItem(new ColorItem(key, value));
}

uint32 ValueOf(const HashItem* item) {
    return static_cast<const ColorItem*>(item)->value;
}

// The keys in the order of iteration, up to the null at the end.
std::vector<uint32> Keys(SFHash& table) {
    std::vector<uint32> keys;
    while (const HashItem* item = table.NextItem())
        keys.push_back(item->key);
    return keys;
}

}  // namespace

TEST(SFHash, StartsEmptyWithTheCursorAtTheFirstBucket) {
    const SFHash table(100);

    EXPECT_FALSE(table.fail);
    EXPECT_EQ(table.bucket_count, 100);
    EXPECT_EQ(table.iter_bucket, 0);
    EXPECT_EQ(table.iter_depth, 0);
    EXPECT_EQ(table.CountItems(), 0);
}

TEST(SFHash, Has4096BucketsUnlessToldOtherwise) {
    const SFHash table;

    EXPECT_EQ(table.bucket_count, 4096);
}

TEST(SFHash, CountsNothingAndYieldsNullWhenEmpty) {
    SFHash table(10);

    EXPECT_EQ(table.CountItems(), 0);
    EXPECT_EQ(table.NextItem(), nullptr);
    EXPECT_EQ(table.GetItem(5), nullptr);
}

TEST(SFHash, KeepsBothItemsOfAKeyAndFindsTheOneAddedFirst) {
    SFHash table(10);
    Add(table, 7, 1);
    Add(table, 7, 2);

    EXPECT_EQ(table.CountItems(), 2);
    EXPECT_EQ(ValueOf(table.GetItem(7)), 1U);
    EXPECT_EQ(ValueOf(table.NextItem()), 1U);
    EXPECT_EQ(ValueOf(table.NextItem()), 2U);
}

TEST(SFHash, TellsKeysOfOneBucketApart) {
    SFHash table(10);
    Add(table, 3, 30);
    Add(table, 13, 130);

    EXPECT_EQ(ValueOf(table.GetItem(3)), 30U);
    EXPECT_EQ(ValueOf(table.GetItem(13)), 130U);
    EXPECT_EQ(table.GetItem(23), nullptr);
}

TEST(SFHash, TakesTheRemainderOfLargeKeysUnsigned) {
    SFHash table(10);
    Add(table, 0xFFFFFFFFU, 9);  // bucket 5
    Add(table, 6);
    Add(table, 4);

    EXPECT_EQ(ValueOf(table.GetItem(0xFFFFFFFFU)), 9U);
    EXPECT_EQ(Keys(table), (std::vector<uint32>{4, 0xFFFFFFFFU, 6}));
}

TEST(SFHash, AppendsItemsWhoseNextStillPointsElsewhere) {
    SFHash table(10);
    ColorItem stray(99, 0);
    auto* item = new ColorItem(1, 0);
    item->next = &stray;

    table.AddItem(item);

    EXPECT_EQ(Keys(table), std::vector<uint32>{1});
}

TEST(SFHash, YieldsEveryItemOnceInBucketOrderThenInsertionOrder) {
    SFHash table(10);
    for (const uint32 key : {42U, 9U, 12U, 2U, 0U, 19U, 32U})
        Add(table, key);

    std::vector<uint32> keys;
    for (int32 left = table.CountItems(); left > 0; --left)
        keys.push_back(table.NextItem()->key);

    EXPECT_EQ(keys, (std::vector<uint32>{0, 42, 12, 2, 32, 9, 19}));
}

TEST(SFHash, RewindsItselfWhenItHasYieldedNull) {
    SFHash table(10);
    Add(table, 4);
    Add(table, 8);

    EXPECT_EQ(Keys(table), (std::vector<uint32>{4, 8}));
    EXPECT_EQ(table.iter_bucket, 0);
    EXPECT_EQ(Keys(table), (std::vector<uint32>{4, 8}));
}

TEST(SFHash, StopsAtTheEndOfTheTableBehindTheLastItem) {
    SFHash table(3);
    Add(table, 2);

    EXPECT_EQ(table.NextItem()->key, 2U);
    EXPECT_EQ(table.iter_bucket, 3);
    EXPECT_EQ(table.NextItem(), nullptr);
}

TEST(SFHash, MovesTheCursorWithinAChainByDepth) {
    SFHash table(10);
    Add(table, 5);
    Add(table, 15);

    table.NextItem();
    EXPECT_EQ(table.iter_bucket, 5);
    EXPECT_EQ(table.iter_depth, 1);
    table.NextItem();
    EXPECT_EQ(table.iter_bucket, 6);
    EXPECT_EQ(table.iter_depth, 0);
}

TEST(SFHash, StartsOverAfterRewind) {
    SFHash table(10);
    Add(table, 5);
    Add(table, 15);
    table.NextItem();

    table.Rewind();

    EXPECT_EQ(table.iter_bucket, 0);
    EXPECT_EQ(table.iter_depth, 0);
    EXPECT_EQ(Keys(table), (std::vector<uint32>{5, 15}));
}

TEST(SFHash, IsEmptyAfterResetAndTakesNewItems) {
    SFHash table(10);
    Add(table, 1);
    Add(table, 11);

    table.Reset();

    EXPECT_EQ(table.CountItems(), 0);
    EXPECT_EQ(table.GetItem(1), nullptr);
    Add(table, 11, 3);
    EXPECT_EQ(table.CountItems(), 1);
    EXPECT_EQ(ValueOf(table.GetItem(11)), 3U);
}

TEST(SFHash, LeavesTheCursorWhereItIsOnReset) {
    SFHash table(10);
    Add(table, 5);
    Add(table, 15);
    table.NextItem();

    table.Reset();

    EXPECT_EQ(table.iter_bucket, 5);
    EXPECT_EQ(table.iter_depth, 1);
}

TEST(SFHash, GoesOnWithTheNextBucketWhenAResetLeftTheCursorPastAChain) {
    SFHash table(10);
    for (const uint32 key : {5U, 15U, 25U})
        Add(table, key);
    table.NextItem();
    table.NextItem();
    table.Reset();
    Add(table, 5);
    Add(table, 7);

    EXPECT_EQ(Keys(table), std::vector<uint32>{7});
}

TEST(SFHash, DeletesItsItemsOnResetAndOnDestruction) {
    int alive = 0;
    {
        SFHash table(2);
        for (uint32 key = 0; key < 5; ++key)
            table.AddItem(new TrackedItem(key, &alive));
        EXPECT_EQ(alive, 5);

        table.Reset();
        EXPECT_EQ(alive, 0);

        table.AddItem(new TrackedItem(1, &alive));
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(SFHash, FailsWhenTheBucketsCantBeAllocated) {
    const AllocationFault fault(1);

    const SFHash table(100);

    EXPECT_TRUE(table.fail);
    EXPECT_EQ(table.bucket_count, 100);
}

TEST(SFHash, FailsWithoutBuckets) {
    EXPECT_TRUE(SFHash(0).fail);
    EXPECT_TRUE(SFHash(-1).fail);
    EXPECT_TRUE(SFHash(INT32_MIN).fail);
}

TEST(SFHash, KeepsNothingButIsSafeToUseAfterFailing) {
    int alive = 0;
    for (const int32 buckets : {0, -3}) {
        SFHash table(buckets);

        table.AddItem(new TrackedItem(1, &alive));

        EXPECT_EQ(alive, 0);
        EXPECT_EQ(table.GetItem(1), nullptr);
        EXPECT_EQ(table.CountItems(), 0);
        EXPECT_EQ(table.NextItem(), nullptr);
        table.Reset();
    }
}

TEST(SFHash, IsSafeToUseAfterAFailedAllocation) {
    AllocationFault fault(1);
    SFHash table(100);

    Add(table, 1);

    EXPECT_EQ(table.GetItem(1), nullptr);
    EXPECT_EQ(table.CountItems(), 0);
    EXPECT_EQ(table.NextItem(), nullptr);
    table.Reset();
}

TEST(ColorKey, HoldsRedAboveGreenAboveBlue) {
    EXPECT_EQ(ColorKey(1, 2, 3), 1U * 65536 + 2 * 256 + 3);
    EXPECT_EQ(ColorKey(255, 255, 255), 0xFFFFFFU);
}

}  // namespace kirto::test
