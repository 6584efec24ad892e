#pragma once

#include <cstddef>
#include <iterator>

#include "animation/frame.h"
#include "animation/frame_leaves.h"
#include "base/types.h"

namespace kirto {

// The frames of an animation, in order. A value whose copies share what they have in common: it is
// kept in leaves of at most 64 frames, and an edit makes new ones of those leaves only that it
// changes. So a step of the history, or a window's copy, costs next to nothing besides the frames
// themselves. Copies may be used by several threads.
class FrameSequence {
  public:
    class Iterator;

    int32 Size() const { return leaves_.FrameCount(); }
    bool Empty() const { return leaves_.Empty(); }

    // Null for positions outside 0..Size() - 1.
    FramePointer At(int32 i) const;
    // The position of the frame of that id, or -1.
    int32 Find(FrameId id) const;

    // i: within 0..Size().
    void Insert(int32 i, FramePointer frame);
    // i: within 0..Size() - 1.
    void Remove(int32 i);
    void Replace(int32 i, FramePointer frame);
    // i, j: within 0..Size() - 1.
    void Swap(int32 i, int32 j);
    void Reverse();

    Iterator begin() const;
    Iterator end() const;

    // The frames [begin, end) of this sequence stand where the other one has [begin, other_end);
    // before and after them both have the same frames, by identity. All equal for sequences that
    // are the same. The cost depends on what differs, not on what is shared.
    struct Difference {
        int32 begin = 0;
        int32 end = 0;
        int32 other_end = 0;
    };
    Difference DifferenceTo(const FrameSequence& other) const;

    // Whether both have equal frames. Skips what they share.
    friend bool operator==(const FrameSequence& a, const FrameSequence& b);

  private:
    using Leaf = FrameLeaves::Leaf;
    static constexpr size_t kLeafSize = 64;

    void SetLeaf(size_t leaf, Leaf frames);

    FrameLeaves leaves_;
};

// Iterates over the frames in order, in constant time per step.
class FrameSequence::Iterator {
  public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = FramePointer;
    using difference_type = std::ptrdiff_t;
    using pointer = const FramePointer*;
    using reference = const FramePointer&;

    Iterator() = default;
    reference operator*() const { return (*sequence_->leaves_[leaf_].leaf)[within_]; }
    pointer operator->() const { return &**this; }
    Iterator& operator++() {
        if (++within_ == sequence_->leaves_[leaf_].leaf->size()) {
            within_ = 0;
            ++leaf_;
        }
        return *this;
    }
    Iterator operator++(int) {
        const Iterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const Iterator&) const = default;

  private:
    friend class FrameSequence;
    Iterator(const FrameSequence& sequence, size_t leaf) : sequence_(&sequence), leaf_(leaf) {}

    const FrameSequence* sequence_ = nullptr;
    size_t leaf_ = 0;
    size_t within_ = 0;
};

inline FrameSequence::Iterator FrameSequence::begin() const {
    return {*this, 0};
}

inline FrameSequence::Iterator FrameSequence::end() const {
    return {*this, leaves_.Size()};
}

}  // namespace kirto
