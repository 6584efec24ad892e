#pragma once

#include "base/types.h"

namespace kirto::bench {

// Tells apart the pictures that programs make of a file. Alpha is not looked at: decoders differ
// about it.
class CanvasDigest {
  public:
    // Adds a row of pixels of 4 bytes: blue, green, red and one more.
    void AddRow(const uint8* pixels, int32 width);
    uint64 Value() const { return value_; }

  private:
    uint64 value_ = 0xCBF29CE484222325U;
};

}  // namespace kirto::bench
