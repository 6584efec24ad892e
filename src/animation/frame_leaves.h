#pragma once

#include <memory>
#include <vector>

#include "animation/frame.h"
#include "base/types.h"

namespace kirto {

// The leaves that the frames of an animation are kept in, and where each of them begins. A value
// whose copies share blocks of leaves: a copy, and whatever is done at its end, costs one pointer
// for some thousands of frames. Copies may be used by several threads.
class FrameLeaves {
  public:
    using Leaf = std::vector<FramePointer>;
    using SharedLeaf = std::shared_ptr<const Leaf>;

    struct Place {
        SharedLeaf leaf;  // not empty
        int32 start = 0;  // position of its first frame
    };

    size_t Size() const { return size_; }
    bool Empty() const { return size_ == 0; }
    // i: below Size().
    const Place& operator[](size_t i) const { return (*blocks_[i / kBlockSize])[i % kBlockSize]; }
    int32 FrameCount() const;

    // The leaf that holds the frame; position: within 0..FrameCount() - 1.
    size_t Find(int32 position) const;

    // Puts a leaf of the same size in the place of leaf i, which is below Size().
    void Set(size_t i, SharedLeaf leaf);
    // Puts these in the place of the count leaves from i on. Costs as much as there are leaves
    // behind i.
    void Replace(size_t i, size_t count, std::vector<SharedLeaf> leaves);

    // Whether they are the same, by identity.
    bool operator==(const FrameLeaves& other) const;

  private:
    static constexpr size_t kBlockSize = 64;
    using Block = std::vector<Place>;

    void CutAt(size_t i);

    std::vector<std::shared_ptr<const Block>> blocks_;  // all full but for the last one
    size_t size_ = 0;
};

}  // namespace kirto
