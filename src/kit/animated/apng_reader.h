#pragma once

#include <span>
#include <vector>

#include "base/allocation.h"
#include "kit/animated/apng_chunks.h"
#include "kit/animated_image.h"

namespace kirto {

// Reads an animated PNG: libpng decodes its images, which are put on the canvas here.
// Format: PNG specification, third edition, "11.3.6.2 fcTL".
class ApngReader : public AnimatedImageReader {
  public:
    // file: all of its bytes, which outlive this. pixel_bytes: what the canvas may take.
    ApngReader(std::span<const uint8> file, uint64 pixel_bytes)
        : chunks_(file), pixel_bytes_(pixel_bytes) {}

    Result ReadHeader(AnimatedImageHeader* header) override;
    Result Next() override;
    const uint8* Row(int32 y) const override { return canvas_.get() + Offset(0, y); }
    double Milliseconds() const override { return control_.milliseconds; }

  private:
    // Where a pixel is in the canvas, in bytes.
    size_t Offset(int32 x, int32 y) const;
    Result Decode();
    // Clears up what the last frame leaves behind.
    void Dispose();
    void KeepArea();
    void Draw();

    ApngChunks chunks_;
    const uint64 pixel_bytes_;
    ApngStart start_;
    ApngControl control_;  // of the frame that is on the canvas
    int32 frames_ = 0;     // drawn so far
    AllocatedArray<uint8> canvas_;
    AllocatedArray<uint8> image_;  // the frame's own pixels
    AllocatedArray<uint8> kept_;   // what was below the frame, where it comes back
};

}  // namespace kirto
