#include "animation/frame_sequence.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace kirto {

FramePointer FrameSequence::At(int32 i) const {
    if (i < 0 || i >= Size()) return nullptr;
    const FrameLeaves::Place& place = leaves_[leaves_.Find(i)];
    return (*place.leaf)[static_cast<size_t>(i - place.start)];
}

int32 FrameSequence::Find(FrameId id) const {
    const auto found =
        std::find_if(begin(), end(), [id](const FramePointer& frame) { return frame->id == id; });
    return found == end() ? -1 : static_cast<int32>(std::distance(begin(), found));
}

void FrameSequence::Insert(int32 i, FramePointer frame) {
    // Appending fills the last leaf before it starts another.
    const size_t count = leaves_.Size();
    if (i == Size() && (count == 0 || leaves_[count - 1].leaf->size() == kLeafSize)) {
        leaves_.Replace(count, 0, {std::make_shared<const Leaf>(1, std::move(frame))});
        return;
    }
    const size_t leaf = i == Size() ? count - 1 : leaves_.Find(i);
    Leaf frames = *leaves_[leaf].leaf;
    frames.insert(frames.begin() + (i - leaves_[leaf].start), std::move(frame));
    if (frames.size() <= kLeafSize) {
        SetLeaf(leaf, std::move(frames));
        return;
    }
    const auto middle = frames.begin() + kLeafSize / 2;
    leaves_.Replace(leaf, 1,
                    {std::make_shared<const Leaf>(frames.begin(), middle),
                     std::make_shared<const Leaf>(middle, frames.end())});
}

void FrameSequence::Remove(int32 i) {
    const size_t leaf = leaves_.Find(i);
    Leaf frames = *leaves_[leaf].leaf;
    frames.erase(frames.begin() + (i - leaves_[leaf].start));
    SetLeaf(leaf, std::move(frames));
}

void FrameSequence::Replace(int32 i, FramePointer frame) {
    const size_t leaf = leaves_.Find(i);
    Leaf frames = *leaves_[leaf].leaf;
    frames[static_cast<size_t>(i - leaves_[leaf].start)] = std::move(frame);
    leaves_.Set(leaf, std::make_shared<const Leaf>(std::move(frames)));
}

void FrameSequence::Swap(int32 i, int32 j) {
    FramePointer first = At(i);
    Replace(i, At(j));
    Replace(j, std::move(first));
}

void FrameSequence::Reverse() {
    std::vector<FrameLeaves::SharedLeaf> reversed;
    reversed.reserve(leaves_.Size());
    for (size_t i = leaves_.Size(); i-- > 0;) {
        const Leaf& leaf = *leaves_[i].leaf;
        reversed.push_back(std::make_shared<const Leaf>(leaf.rbegin(), leaf.rend()));
    }
    leaves_.Replace(0, leaves_.Size(), std::move(reversed));
}

// Puts the frames in the leaf's place, or takes it away where there are none.
void FrameSequence::SetLeaf(size_t leaf, Leaf frames) {
    if (frames.empty()) {
        leaves_.Replace(leaf, 1, {});
    } else {
        leaves_.Replace(leaf, 1, {std::make_shared<const Leaf>(std::move(frames))});
    }
}

FrameSequence::Difference FrameSequence::DifferenceTo(const FrameSequence& other) const {
    const int32 size = Size();
    const int32 other_size = other.Size();
    const int32 shorter = std::min(size, other_size);
    int32 begin = 0;
    for (size_t i = 0; i < leaves_.Size() && i < other.leaves_.Size(); ++i) {
        if (leaves_[i].leaf != other.leaves_[i].leaf) break;
        begin += static_cast<int32>(leaves_[i].leaf->size());
    }
    int32 behind = 0;
    for (size_t i = leaves_.Size(), j = other.leaves_.Size(); i > 0 && j > 0; --i, --j) {
        const auto frames = static_cast<int32>(leaves_[i - 1].leaf->size());
        if (leaves_[i - 1].leaf != other.leaves_[j - 1].leaf || behind + frames > shorter - begin)
            break;
        behind += frames;
    }
    while (begin < shorter - behind && At(begin) == other.At(begin))
        ++begin;
    while (behind < shorter - begin && At(size - 1 - behind) == other.At(other_size - 1 - behind))
        ++behind;
    return {begin, size - behind, other_size - behind};
}

bool operator==(const FrameSequence& a, const FrameSequence& b) {
    if (a.Size() != b.Size()) return false;
    if (a.leaves_ == b.leaves_) return true;
    return std::equal(
        a.begin(), a.end(), b.begin(),
        [](const FramePointer& x, const FramePointer& y) { return x == y || *x == *y; });
}

}  // namespace kirto
