#include "kit/animated/webp_reader.h"

#include <limits>
#include <webp/demux.h>

namespace kirto {

namespace {

// The decoder has two canvases.
constexpr uint64 kBytesOfCanvases = 8;

}  // namespace

void WebpReader::Deleter::operator()(WebPAnimDecoder* decoder) const {
    WebPAnimDecoderDelete(decoder);
}

WebpReader::WebpReader(std::span<const uint8> file, uint64 pixel_bytes)
    : file_(file), pixel_bytes_(pixel_bytes) {}

WebpReader::~WebpReader() = default;

AnimatedImageReader::Result WebpReader::ReadHeader(AnimatedImageHeader* header) {
    const WebPData data{file_.data(), file_.size()};
    WebPBitstreamFeatures features;
    if (WebPGetFeatures(data.bytes, data.size, &features) != VP8_STATUS_OK) return Result::kBroken;
    const uint64 pixels =
        static_cast<uint64>(features.width) * static_cast<uint64>(features.height);
    if (pixels > pixel_bytes_ / kBytesOfCanvases) return Result::kNoMemory;
    WebPAnimDecoderOptions options;
    WebPAnimDecoderOptionsInit(&options);
    options.color_mode = MODE_BGRA;
    decoder_.reset(WebPAnimDecoderNew(&data, &options));
    WebPAnimInfo info;
    if (!decoder_ || !WebPAnimDecoderGetInfo(decoder_.get(), &info)) return Result::kBroken;
    if (info.frame_count > static_cast<uint32>(std::numeric_limits<int32>::max()))
        return Result::kBroken;
    width_ = static_cast<int32>(info.canvas_width);
    frames_left_ = static_cast<int32>(info.frame_count);
    *header = {width_, static_cast<int32>(info.canvas_height), frames_left_,
               static_cast<int32>(info.loop_count)};
    return Result::kFrame;
}

AnimatedImageReader::Result WebpReader::Next() {
    if (frames_left_ == 0) return Result::kEnd;
    uint8* canvas = nullptr;
    int until = 0;
    if (!WebPAnimDecoderGetNext(decoder_.get(), &canvas, &until)) return Result::kBroken;
    // The sum of the times may be more than the library can count.
    if (until < shown_until_) return Result::kBroken;
    --frames_left_;
    canvas_ = canvas;
    milliseconds_ = static_cast<double>(until) - shown_until_;
    shown_until_ = until;
    return Result::kFrame;
}

const uint8* WebpReader::Row(int32 y) const {
    return canvas_ + static_cast<size_t>(y) * static_cast<size_t>(width_) * 4;
}

}  // namespace kirto
