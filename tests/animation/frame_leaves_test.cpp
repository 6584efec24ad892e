#include "animation/frame_leaves.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace kirto::test {

namespace {

using SharedLeaves = std::vector<FrameLeaves::SharedLeaf>;

FrameLeaves::SharedLeaf LeafOf(size_t frames) {
    return std::make_shared<const FrameLeaves::Leaf>(frames);
}

SharedLeaves NewLeaves(std::mt19937& random, size_t count) {
    SharedLeaves leaves;
    for (size_t i = 0; i < count; ++i)
        leaves.push_back(LeafOf(1 + random() % 64));
    return leaves;
}

void ExpectLeaves(const FrameLeaves& leaves, const SharedLeaves& plain) {
    ASSERT_EQ(leaves.Size(), plain.size());
    int32 start = 0;
    for (size_t i = 0; i < plain.size(); ++i) {
        ASSERT_EQ(leaves[i].leaf, plain[i]);
        ASSERT_EQ(leaves[i].start, start);
        ASSERT_EQ(leaves.Find(start), i);
        start += static_cast<int32>(plain[i]->size());
        ASSERT_EQ(leaves.Find(start - 1), i);
    }
    ASSERT_EQ(leaves.FrameCount(), start);
}

}  // namespace

TEST(FrameLeaves, AreAsAPlainListThroughRandomReplacements) {
    std::mt19937 random(1);
    FrameLeaves leaves;
    SharedLeaves plain;
    for (int32 step = 0; step < 300; ++step) {
        const size_t first = random() % (plain.size() + 1);
        const size_t count = random() % (plain.size() - first + 1) / (step % 7 == 0 ? 1 : 8);
        const SharedLeaves added = NewLeaves(random, random() % 70);
        const auto place = plain.begin() + static_cast<std::ptrdiff_t>(first);
        plain.insert(plain.erase(place, place + static_cast<std::ptrdiff_t>(count)), added.begin(),
                     added.end());
        leaves.Replace(first, count, added);
        ExpectLeaves(leaves, plain);
    }
}

TEST(FrameLeaves, SetTouchesNoOtherLeafAndNoCopy) {
    std::mt19937 random(2);
    SharedLeaves plain = NewLeaves(random, 200);
    FrameLeaves leaves;
    leaves.Replace(0, 0, plain);
    const FrameLeaves copy = leaves;

    const SharedLeaves before = plain;
    plain[130] = LeafOf(plain[130]->size());
    leaves.Set(130, plain[130]);

    ExpectLeaves(leaves, plain);
    ExpectLeaves(copy, before);
    EXPECT_FALSE(leaves == copy);
}

TEST(FrameLeaves, AreTheSameInACopyAndInOneMadeOfTheSameLeaves) {
    std::mt19937 random(3);
    const SharedLeaves plain = NewLeaves(random, 100);
    FrameLeaves leaves;
    leaves.Replace(0, 0, plain);
    FrameLeaves other;
    for (size_t i = 0; i < plain.size(); ++i)
        other.Replace(i, 0, {plain[i]});

    EXPECT_TRUE(leaves == FrameLeaves(leaves));
    EXPECT_TRUE(leaves == other);
    other.Replace(99, 1, {});
    EXPECT_FALSE(leaves == other);
}

// Otherwise a file of a million frames, each of which is added to a copy, takes minutes to open.
TEST(FrameLeaves, AppendingToACopyTouchesOnlyTheLastLeaves) {
    const FrameLeaves::SharedLeaf first = LeafOf(64);
    FrameLeaves leaves;
    leaves.Replace(0, 0, SharedLeaves(64, first));
    leaves.Replace(64, 0, {LeafOf(64)});
    const long before = first.use_count();

    FrameLeaves copy = leaves;
    copy.Replace(65, 0, {LeafOf(1)});

    EXPECT_EQ(first.use_count(), before);
}

}  // namespace kirto::test
