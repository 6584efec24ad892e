#include "animation/frame_sequence.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace kirto {

FramePointer FrameSequence::At(int32 i) const {
    if (i < 0 || i >= size_) return nullptr;
    const size_t leaf = LeafOf(i);
    return (*leaves_[leaf])[static_cast<size_t>(i - starts_[leaf])];
}

int32 FrameSequence::Find(FrameId id) const {
    const auto found =
        std::find_if(begin(), end(), [id](const FramePointer& frame) { return frame->id == id; });
    return found == end() ? -1 : static_cast<int32>(std::distance(begin(), found));
}

void FrameSequence::Insert(int32 i, FramePointer frame) {
    // Appending fills the last leaf before it starts another.
    if (i == size_ && (leaves_.empty() || leaves_.back()->size() == kLeafSize)) {
        SetLeaf(leaves_.size(), {std::move(frame)});
        return;
    }
    const size_t leaf = i == size_ ? leaves_.size() - 1 : LeafOf(i);
    Leaf frames = *leaves_[leaf];
    frames.insert(frames.begin() + (i - starts_[leaf]), std::move(frame));
    if (frames.size() > kLeafSize) {
        const auto middle = frames.begin() + kLeafSize / 2;
        Leaf rest(std::make_move_iterator(middle), std::make_move_iterator(frames.end()));
        frames.erase(middle, frames.end());
        leaves_.insert(leaves_.begin() + static_cast<std::ptrdiff_t>(leaf) + 1,
                       std::make_shared<const Leaf>(std::move(rest)));
    }
    SetLeaf(leaf, std::move(frames));
}

void FrameSequence::Remove(int32 i) {
    const size_t leaf = LeafOf(i);
    Leaf frames = *leaves_[leaf];
    frames.erase(frames.begin() + (i - starts_[leaf]));
    SetLeaf(leaf, std::move(frames));
}

void FrameSequence::Replace(int32 i, FramePointer frame) {
    const size_t leaf = LeafOf(i);
    Leaf frames = *leaves_[leaf];
    frames[static_cast<size_t>(i - starts_[leaf])] = std::move(frame);
    SetLeaf(leaf, std::move(frames));
}

void FrameSequence::Swap(int32 i, int32 j) {
    FramePointer first = At(i);
    Replace(i, At(j));
    Replace(j, std::move(first));
}

void FrameSequence::Reverse() {
    std::vector<std::shared_ptr<const Leaf>> reversed;
    reversed.reserve(leaves_.size());
    std::transform(leaves_.rbegin(), leaves_.rend(), std::back_inserter(reversed),
                   [](const std::shared_ptr<const Leaf>& leaf) {
                       return std::make_shared<const Leaf>(leaf->rbegin(), leaf->rend());
                   });
    leaves_ = std::move(reversed);
    Renumber();
}

size_t FrameSequence::LeafOf(int32 i) const {
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), i);
    return static_cast<size_t>(after - starts_.begin()) - 1;
}

// Puts the frames in the leaf's place, adds a last leaf, or takes away an emptied one.
void FrameSequence::SetLeaf(size_t leaf, Leaf frames) {
    const auto place = leaves_.begin() + static_cast<std::ptrdiff_t>(leaf);
    if (frames.empty()) {
        leaves_.erase(place);
    } else {
        auto shared = std::make_shared<const Leaf>(std::move(frames));
        if (place == leaves_.end()) {
            leaves_.push_back(std::move(shared));
        } else {
            *place = std::move(shared);
        }
    }
    Renumber();
}

void FrameSequence::Renumber() {
    starts_.resize(leaves_.size());
    size_ = 0;
    for (size_t leaf = 0; leaf < leaves_.size(); ++leaf) {
        starts_[leaf] = size_;
        size_ += static_cast<int32>(leaves_[leaf]->size());
    }
}

FrameSequence::Difference FrameSequence::DifferenceTo(const FrameSequence& other) const {
    const int32 shorter = std::min(size_, other.size_);
    int32 begin = 0;
    for (size_t leaf = 0; leaf < leaves_.size() && leaf < other.leaves_.size(); ++leaf) {
        if (leaves_[leaf] != other.leaves_[leaf]) break;
        begin += static_cast<int32>(leaves_[leaf]->size());
    }
    int32 behind = 0;
    auto leaf = leaves_.rbegin();
    auto other_leaf = other.leaves_.rbegin();
    for (; leaf != leaves_.rend() && other_leaf != other.leaves_.rend(); ++leaf, ++other_leaf) {
        const auto size = static_cast<int32>((*leaf)->size());
        if (*leaf != *other_leaf || behind + size > shorter - begin) break;
        behind += size;
    }
    while (begin < shorter - behind && At(begin) == other.At(begin))
        ++begin;
    while (behind < shorter - begin && At(size_ - 1 - behind) == other.At(other.size_ - 1 - behind))
        ++behind;
    return {begin, size_ - behind, other.size_ - behind};
}

bool operator==(const FrameSequence& a, const FrameSequence& b) {
    if (a.size_ != b.size_) return false;
    if (a.leaves_ == b.leaves_) return true;
    return std::equal(
        a.begin(), a.end(), b.begin(),
        [](const FramePointer& x, const FramePointer& y) { return x == y || *x == *y; });
}

}  // namespace kirto
