#include "animation/frame_leaves.h"

#include <algorithm>
#include <utility>

namespace kirto {

int32 FrameLeaves::FrameCount() const {
    if (Empty()) return 0;
    const Place& last = (*this)[size_ - 1];
    return last.start + static_cast<int32>(last.leaf->size());
}

size_t FrameLeaves::Find(int32 position) const {
    const auto block = std::prev(std::upper_bound(
        blocks_.begin(), blocks_.end(), position,
        [](int32 wanted, const auto& candidate) { return wanted < candidate->front().start; }));
    const auto place = std::prev(std::upper_bound(
        (*block)->begin(), (*block)->end(), position,
        [](int32 wanted, const Place& candidate) { return wanted < candidate.start; }));
    return static_cast<size_t>(block - blocks_.begin()) * kBlockSize +
           static_cast<size_t>(place - (*block)->begin());
}

void FrameLeaves::Set(size_t i, SharedLeaf leaf) {
    std::shared_ptr<const Block>& shared = blocks_[i / kBlockSize];
    Block block = *shared;
    block[i % kBlockSize].leaf = std::move(leaf);
    shared = std::make_shared<const Block>(std::move(block));
}

void FrameLeaves::Replace(size_t i, size_t count, std::vector<SharedLeaf> leaves) {
    for (size_t behind = i + count; behind < size_; ++behind)
        leaves.push_back((*this)[behind].leaf);
    CutAt(i);
    int32 start = FrameCount();
    for (auto next = leaves.begin(); next != leaves.end();) {
        Block block;
        if (size_ % kBlockSize != 0) {
            block = *blocks_.back();
            blocks_.pop_back();
        }
        for (; next != leaves.end() && block.size() < kBlockSize; ++next, ++size_) {
            const auto frames = static_cast<int32>((*next)->size());
            block.push_back({std::move(*next), start});
            start += frames;
        }
        blocks_.push_back(std::make_shared<const Block>(std::move(block)));
    }
}

// Drops leaf i and all behind it.
void FrameLeaves::CutAt(size_t i) {
    if (i == size_) return;
    const size_t kept = i % kBlockSize;
    const std::shared_ptr<const Block> cut = blocks_[i / kBlockSize];
    blocks_.resize(i / kBlockSize);
    if (kept > 0) {
        const auto end = cut->begin() + static_cast<std::ptrdiff_t>(kept);
        blocks_.push_back(std::make_shared<const Block>(cut->begin(), end));
    }
    size_ = i;
}

bool FrameLeaves::operator==(const FrameLeaves& other) const {
    if (size_ != other.size_) return false;
    return std::equal(
        blocks_.begin(), blocks_.end(), other.blocks_.begin(), [](const auto& a, const auto& b) {
            return a == b ||
                   std::equal(a->begin(), a->end(), b->begin(),
                              [](const Place& x, const Place& y) { return x.leaf == y.leaf; });
        });
}

}  // namespace kirto
