#pragma once

#include <vector>

#include "animations.h"
#include "base/types.h"
#include "kit/file.h"

namespace kirto::bench {

// Tells apart the pictures that decoders make of a file. Alpha is not looked at: decoders differ
// about it.
class CanvasDigest {
  public:
    // The plan outlives the digest; it says how large the canvases are.
    explicit CanvasDigest(const AnimationPlan& plan) : plan_(plan) {}

    // Adds a canvas of 4 bytes a pixel: blue, green, red and one more.
    void Add(const uint8* first_row, size_t bytes_per_row);
    uint64 Value() const { return value_; }

  private:
    const AnimationPlan& plan_;
    uint64 value_ = 0xCBF29CE484222325U;
};

// Reads the whole file into an empty document. False when GifLoad fails.
bool LoadFromStart(BFile* file, AnimationDocument& document);

// The digest of what GifLoad makes of a file at full size; 0 when it fails.
uint64 LoadedDigest(const std::vector<uint8>& gif, const AnimationPlan& plan);

}  // namespace kirto::bench
