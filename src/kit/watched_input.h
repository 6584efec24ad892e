#pragma once

#include "base/work.h"
#include "kit/file.h"

namespace kirto {

// A file that is read as a piece of work: each read tells how far it is in the file, and when the
// work is stopped the file ends there. Neither is owned.
class WatchedInput {
  public:
    WatchedInput(BFile& file, Work& work) : file_(file), work_(work) {}

    // True when exactly size bytes were read.
    bool Read(void* buffer, size_t size);
    // Reads size bytes, or fewer where the file ends. Returns how many; 0 when the work is stopped.
    size_t ReadUpTo(void* buffer, size_t size);
    // Moves by the distance; false before the file's start. Past its end is allowed.
    bool Skip(int64 distance) { return file_.Seek(distance, SEEK_FROM_CURRENT) >= 0; }
    int64 Position() const { return file_.Position(); }
    int64 Size() const { return file_.Size(); }
    // Whether memory has been too short for a read.
    bool RanOutOfMemory() const { return file_.RanOutOfMemory(); }

  private:
    BFile& file_;
    Work& work_;
};

}  // namespace kirto
