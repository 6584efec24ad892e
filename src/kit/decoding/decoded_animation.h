#pragma once

#include <memory>
#include <span>

#include "base/allocation.h"
#include "kit/animated_image.h"
#include "kit/decoding/decoder_process.h"

namespace kirto {

// The frames of an animated image, drawn by another process. What that does wrong is a broken file.
class DecodedAnimation : public AnimatedImageReader {
  public:
    // file: all of its bytes, which outlive this. pixel_bytes: what its canvas may take.
    DecodedAnimation(std::unique_ptr<DecoderProcess> process, AnimatedImageFormat format,
                     std::span<const uint8> file, uint64 pixel_bytes);

    Result ReadHeader(AnimatedImageHeader* header) override;
    Result Next() override;
    const uint8* Row(int32 y) const override {
        return canvas_.get() + RowBytes() * static_cast<size_t>(y);
    }
    double Milliseconds() const override { return milliseconds_; }

  private:
    size_t RowBytes() const { return 4 * static_cast<size_t>(width_); }
    size_t CanvasBytes() const { return RowBytes() * static_cast<size_t>(height_); }
    Result Ask(DecodeJob job, int file, DecodeAnswer* answer, FileDescriptor* pixels);

    const std::unique_ptr<DecoderProcess> process_;
    const AnimatedImageFormat format_;
    const std::span<const uint8> file_;
    const uint64 pixel_bytes_;
    int32 width_ = 0;
    int32 height_ = 0;
    double milliseconds_ = 0.0;
    FileDescriptor pixels_;  // that the process draws on
    AllocatedArray<uint8> canvas_;
};

}  // namespace kirto
