#include "formats/full_color/webp_reader.h"

#include <webp/demux.h>

#include <array>
#include <cstring>
#include <limits>

namespace kirto {

namespace {

// The decoder has two canvases.
constexpr uint64 kCanvasBytes = 8;

}  // namespace

void WebpReader::Deleter::operator()(WebPAnimDecoder* decoder) const {
    WebPAnimDecoderDelete(decoder);
}

bool WebpReader::Knows(BFile& file) {
    // The chunk VP8X comes first in every file that has more than a still image.
    constexpr uint8 kAnimation = 0x02;
    std::array<uint8, 21> start{};
    file.Seek(0, SEEK_FROM_START);
    const bool whole = file.ReadExactly(start.data(), start.size());
    file.Seek(0, SEEK_FROM_START);
    return whole && std::memcmp(start.data(), "RIFF", 4) == 0 &&
           std::memcmp(&start[8], "WEBPVP8X", 8) == 0 && (start[20] & kAnimation) != 0;
}

WebpReader::WebpReader(std::span<const uint8> file, uint64 pixel_bytes)
    : file_(file), pixel_bytes_(pixel_bytes) {}

WebpReader::~WebpReader() = default;

FullColorReader::Result WebpReader::ReadHeader(FullColorHeader* header) {
    const WebPData data{file_.data(), file_.size()};
    WebPBitstreamFeatures features;
    if (WebPGetFeatures(data.bytes, data.size, &features) != VP8_STATUS_OK) return Result::kBroken;
    const uint64 pixels =
        static_cast<uint64>(features.width) * static_cast<uint64>(features.height);
    if (pixels > pixel_bytes_ / kCanvasBytes) return Result::kNoMemory;
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

FullColorReader::Result WebpReader::Next() {
    if (frames_left_ == 0) return Result::kEnd;
    uint8* canvas = nullptr;
    int until = 0;
    if (!WebPAnimDecoderGetNext(decoder_.get(), &canvas, &until)) return Result::kBroken;
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
