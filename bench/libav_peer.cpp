// The FLC decoder of ffmpeg's libraries.
extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <cstring>
#include <memory>

#include "peers.h"

namespace kirto::bench {

namespace {

constexpr int kReadBuffer = 32768;  // bytes

struct FreeFrame {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct FreePacket {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
struct FreeCodec {
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
};
struct FreeInput {
    void operator()(AVIOContext* input) const {
        av_freep(&input->buffer);
        avio_context_free(&input);
    }
};
struct CloseFormat {
    void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
};
using FramePointer = std::unique_ptr<AVFrame, FreeFrame>;
using PacketPointer = std::unique_ptr<AVPacket, FreePacket>;
using CodecPointer = std::unique_ptr<AVCodecContext, FreeCodec>;
using InputPointer = std::unique_ptr<AVIOContext, FreeInput>;
using FormatPointer = std::unique_ptr<AVFormatContext, CloseFormat>;

struct Source {
    const std::vector<uint8>& bytes;
    int64 position = 0;
};

int ReadSource(void* opaque, uint8_t* buffer, int size) {
    auto* source = static_cast<Source*>(opaque);
    const int64 left = static_cast<int64>(source->bytes.size()) - source->position;
    if (left <= 0) return AVERROR_EOF;
    const int64 count = std::min(left, int64{size});
    std::memcpy(buffer, source->bytes.data() + source->position, static_cast<size_t>(count));
    source->position += count;
    return static_cast<int>(count);
}

int64_t SeekSource(void* opaque, int64_t offset, int whence) {
    auto* source = static_cast<Source*>(opaque);
    const int64 size = static_cast<int64>(source->bytes.size());
    if ((whence & AVSEEK_SIZE) != 0) return size;
    if (whence == SEEK_CUR) offset += source->position;
    if (whence == SEEK_END) offset += size;
    source->position = std::clamp(int64{offset}, int64{0}, size);
    return source->position;
}

InputPointer OpenSource(Source* source) {
    auto* buffer = static_cast<unsigned char*>(av_malloc(kReadBuffer));
    return InputPointer(
        avio_alloc_context(buffer, kReadBuffer, 0, source, ReadSource, nullptr, SeekSource));
}

FormatPointer OpenFormat(AVIOContext* input) {
    AVFormatContext* format = avformat_alloc_context();
    if (!format) return nullptr;
    format->pb = input;
    // A failure frees the context.
    if (avformat_open_input(&format, "", av_find_input_format("flic"), nullptr) != 0)
        return nullptr;
    return FormatPointer(format);
}

CodecPointer OpenDecoder(const AVFormatContext& format) {
    const AVCodec* codec = avcodec_find_decoder(AV_CODEC_ID_FLIC);
    if (!codec || format.nb_streams != 1) return nullptr;
    CodecPointer context(avcodec_alloc_context3(codec));
    if (!context) return nullptr;
    if (avcodec_parameters_to_context(context.get(), format.streams[0]->codecpar) < 0 ||
        avcodec_open2(context.get(), codec, nullptr) < 0) {
        return nullptr;
    }
    return context;
}

// Expands palette indices, as the decoder gives them, to a canvas.
void Paint(const AVFrame& frame, Canvases* result) {
    uint8* pixel = result->Add(false);
    const auto* pixels = reinterpret_cast<const uint32_t*>(frame.data[1]);
    for (int32 y = 0; y < result->height; ++y) {
        const uint8* row = frame.data[0] + ptrdiff_t{y} * frame.linesize[0];
        for (int32 x = 0; x < result->width; ++x, pixel += 4)
            std::memcpy(pixel, &pixels[row[x]], 4);
    }
}

// Takes every frame that the decoder has ready. False on failure.
bool TakeFrames(AVCodecContext* decoder, Canvases* result) {
    const FramePointer frame(av_frame_alloc());
    for (;;) {
        if (!frame) return false;
        const int status = avcodec_receive_frame(decoder, frame.get());
        if (status == AVERROR(EAGAIN) || status == AVERROR_EOF) return true;
        if (status < 0 || frame->format != AV_PIX_FMT_PAL8) return false;
        Paint(*frame, result);
    }
}

}  // namespace

std::optional<Canvases> DecodeWithLibavcodec(const std::vector<uint8>& flc) {
    Source source{flc};
    const InputPointer input = OpenSource(&source);
    const FormatPointer format = input ? OpenFormat(input.get()) : nullptr;
    const CodecPointer decoder = format ? OpenDecoder(*format) : nullptr;
    const PacketPointer packet(av_packet_alloc());
    if (!decoder || !packet) return std::nullopt;
    Canvases result{decoder->width, decoder->height, {}};
    while (av_read_frame(format.get(), packet.get()) >= 0) {
        const bool sent = avcodec_send_packet(decoder.get(), packet.get()) >= 0;
        av_packet_unref(packet.get());
        if (!sent || !TakeFrames(decoder.get(), &result)) return std::nullopt;
    }
    if (avcodec_send_packet(decoder.get(), nullptr) < 0) return std::nullopt;
    if (!TakeFrames(decoder.get(), &result)) return std::nullopt;
    return result;
}

}  // namespace kirto::bench
