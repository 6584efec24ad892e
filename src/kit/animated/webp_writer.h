#pragma once

#include <memory>

#include "kit/animated_image_writer.h"

struct WebPAnimEncoder;

namespace kirto {

// Writes an animated WebP by libwebp, which finds what changes from frame to frame. Frames that
// look alike become one.
// Format: the container specification of WebP, "Extended file format".
class WebpWriter : public AnimatedImageWriter {
  public:
    // The most pixels that a side may have.
    static constexpr int32 kMostPixelsOfASide = 16383;

    WebpWriter(const AnimatedImageHeader& header, AnimatedImageQuality quality);
    ~WebpWriter() override;

    bool Add(std::span<const uint8> canvas, int32 milliseconds) override;
    std::vector<uint8> Finish() override;

  private:
    struct Deleter {
        void operator()(WebPAnimEncoder* encoder) const;
    };

    const AnimatedImageHeader header_;
    const AnimatedImageQuality quality_;
    std::unique_ptr<WebPAnimEncoder, Deleter> encoder_;
    int64 shown_until_ = 0;  // milliseconds from the start of the animation
};

}  // namespace kirto
