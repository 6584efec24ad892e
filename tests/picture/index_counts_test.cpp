#include "picture/index_counts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kirto::test {

namespace {

// One index after the other.
struct PlainCounts {
    explicit PlainCounts(const std::vector<uint8>& indices) {
        for (const uint8 index : indices) {
            if (counts[index]++ == 0) order.push_back(index);
        }
    }

    std::vector<uint32> counts = std::vector<uint32>(256);
    std::vector<uint8> order;
};

void ExpectPlain(const IndexCounts& counts, const std::vector<uint8>& indices) {
    const PlainCounts plain(indices);
    EXPECT_TRUE(std::ranges::equal(counts.InOrder(), plain.order));
    for (const IndexCount& each : counts.Listed())
        ASSERT_EQ(each.first, std::ranges::find(indices, each.index) - indices.begin());
    for (size_t index = 0; index < 256; ++index)
        ASSERT_EQ(counts.Of(static_cast<uint8>(index)), plain.counts[index]);
}

}  // namespace

TEST(IndexCounts, AreEmptyAtFirst) {
    const IndexCounts counts;

    EXPECT_TRUE(counts.InOrder().empty());
    EXPECT_EQ(counts.Of(0), 0U);
}

TEST(IndexCounts, AreThoseOfEachIndexInOrderOfFirstAppearance) {
    std::mt19937 random(7);
    for (const size_t size : {1U, 7U, 8U, 9U, 4095U, 4096U, 4097U, 30000U}) {
        for (const uint32 different : {1U, 2U, 17U, 256U}) {
            std::vector<uint8> indices(size);
            for (uint8& index : indices)
                index = static_cast<uint8>(255 - random() % different);
            IndexCounts counts;
            counts.Add(indices);

            ExpectPlain(counts, indices);
        }
    }
}

TEST(IndexCounts, FindAnIndexThatComesOnceAndLate) {
    std::vector<uint8> indices(20000, 9);
    indices[5000] = 3;
    indices[19999] = 1;
    IndexCounts counts;
    counts.Add(indices);

    ExpectPlain(counts, indices);
}

TEST(IndexCounts, FindManyIndicesThatComeLate) {
    std::vector<uint8> indices(60000, 9);
    for (size_t i = 0; i < 200; ++i)
        indices[indices.size() - 1 - i * i] = static_cast<uint8>(i);
    IndexCounts counts;
    counts.Add(indices);

    ExpectPlain(counts, indices);
}

TEST(IndexCounts, FollowChangesOfTheIndices) {
    std::mt19937 random(11);
    for (const size_t size : {1U, 31U, 32U, 33U, 16384U, 16391U, 50000U}) {
        for (const size_t changes : {size_t{0}, size_t{1}, size_t{40}, size}) {
            std::vector<uint8> before(size);
            for (uint8& index : before)
                index = static_cast<uint8>(random() % 30);
            std::vector<uint8> after = before;
            for (size_t i = 0; i < changes; ++i)
                after[random() % size] = static_cast<uint8>(random() % 40);
            IndexCounts counts;
            counts.Add(before);
            counts.Change(before, after);

            ExpectPlain(counts, after);
        }
    }
}

TEST(IndexCounts, FollowOneChangeAfterTheOther) {
    std::mt19937 random(13);
    for (const uint32 colors : {2U, 40U, 256U}) {
        std::vector<uint8> before(20000);
        IndexCounts counts;
        counts.Add(before);
        for (int32 change = 0; change < 200; ++change) {
            std::vector<uint8> after = before;
            const size_t first = random() % after.size();
            const size_t size = std::min<size_t>(random() % 3000, after.size() - first);
            for (size_t i = first; i < first + size; i += 1 + random() % 9)
                after[i] = static_cast<uint8>(random() % colors);
            counts = IndexCounts(counts.Listed());
            counts.Change(before, after);

            ExpectPlain(counts, after);
            before = std::move(after);
        }
    }
}

TEST(IndexCounts, AreWhatWasListed) {
    const std::vector<uint8> indices = {4, 4, 2, 9, 2};
    IndexCounts counts;
    counts.Add(indices);

    ExpectPlain(IndexCounts(counts.Listed()), indices);

    IndexCounts more(counts.Listed());
    more.Add(std::vector<uint8>{9, 1});
    ExpectPlain(more, {4, 4, 2, 9, 2, 9, 1});
}

TEST(AreMostlySame, TellsIndicesThatDifferLittle) {
    std::vector<uint8> first(10000, 1);
    std::vector<uint8> second = first;
    std::fill_n(second.begin(), 4000, uint8{2});
    EXPECT_TRUE(AreMostlySame(first, second));
    std::fill_n(second.begin(), 6000, uint8{2});
    EXPECT_FALSE(AreMostlySame(first, second));
}

TEST(AreMostlySame, IsFalseOfTooFewToTell) {
    const std::vector<uint8> few(100, 1);
    EXPECT_FALSE(AreMostlySame(few, few));
}

TEST(IndexCounts, GoOnWithMoreIndices) {
    IndexCounts counts;
    counts.Add(std::vector<uint8>{4, 4, 2});
    counts.Add(std::vector<uint8>{7, 2});

    ExpectPlain(counts, {4, 4, 2, 7, 2});
}

}  // namespace kirto::test
