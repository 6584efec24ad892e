#pragma once

#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "kit/watched_input.h"

namespace kirto {

// A FLI or FLC file as its decoder reads it: whole blocks, skips in both directions, and an account
// of the work. A valid file is read once; one with false sizes can lead back to the same bytes
// 65535 times in each of 65535 records. So every read and every filled picture is charged, and a
// file that asks for much more than its size explains ends as if it were cut off.
class FliInput {
  public:
    // file, work: outlive this. The file is positioned by its owner.
    FliInput(BFile& file, Work& work);

    // True when the buffer was filled from the file's position.
    bool Read(std::span<uint8> buffer);
    // The next size bytes, as a view that is valid until the next call. False when the size is
    // negative, the file holds fewer bytes, or memory is short.
    bool ReadBlock(int64 size, std::span<const uint8>* block);
    // Moves by the distance, which may be negative. False before the file's start; past its end is
    // allowed.
    bool Skip(int64 distance);

    int64 Position() const { return input_.Position(); }
    int64 Size() const { return input_.Size(); }
    // Whether memory has been too short for a read.
    bool RanOutOfMemory() const { return ran_out_of_memory_ || input_.RanOutOfMemory(); }

    // Notes that a record starts here. False where the file has led back: a record has started here
    // or further on before.
    bool StartRecord();

    // Charges work, in bytes handled. Returns false when the account is used up.
    bool Spend(int64 work);
    // Allows this much more work: each picture brings its own.
    void Allow(int64 work) { work_left_ += work; }

  private:
    WatchedInput input_;
    int64 work_left_;
    int64 furthest_record_ = -1;  // where the record furthest on starts
    AllocatedArray<uint8> block_;
    size_t capacity_ = 0;  // of block_
    bool ran_out_of_memory_ = false;
};

}  // namespace kirto
