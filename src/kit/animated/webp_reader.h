#pragma once

#include <memory>
#include <span>

#include "kit/animated_image.h"

struct WebPAnimDecoder;

namespace kirto {

// Reads an animated WebP by libwebp, which puts the frames on the canvas.
// Format: the container specification of WebP, "Extended file format".
class WebpReader : public AnimatedImageReader {
  public:
    // file: all of its bytes, which outlive this. pixel_bytes: what the canvas may take.
    WebpReader(std::span<const uint8> file, uint64 pixel_bytes);
    ~WebpReader() override;

    Result ReadHeader(AnimatedImageHeader* header) override;
    Result Next() override;
    const uint8* Row(int32 y) const override;
    double Milliseconds() const override { return milliseconds_; }

  private:
    struct Deleter {
        void operator()(WebPAnimDecoder* decoder) const;
    };

    const std::span<const uint8> file_;
    const uint64 pixel_bytes_;
    std::unique_ptr<WebPAnimDecoder, Deleter> decoder_;
    const uint8* canvas_ = nullptr;  // the decoder's
    int32 width_ = 0;
    int32 frames_left_ = 0;
    int shown_until_ = 0;  // milliseconds from the start of the animation
    double milliseconds_ = 0.0;
};

}  // namespace kirto
