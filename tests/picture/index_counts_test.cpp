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

TEST(IndexCounts, GoOnWithMoreIndices) {
    IndexCounts counts;
    counts.Add(std::vector<uint8>{4, 4, 2});
    counts.Add(std::vector<uint8>{7, 2});

    ExpectPlain(counts, {4, 4, 2, 7, 2});
}

}  // namespace kirto::test
