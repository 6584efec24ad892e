// The GIF codecs of ffmpeg's libraries, in this process.
extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <cstring>
#include <memory>

#include "formats/gif/gif_pixel_writer.h"
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
    if (avformat_open_input(&format, "", av_find_input_format("gif"), nullptr) != 0) return nullptr;
    return FormatPointer(format);
}

CodecPointer OpenDecoder(const AVFormatContext& format) {
    const AVCodec* codec = avcodec_find_decoder(AV_CODEC_ID_GIF);
    if (!codec || format.nb_streams != 1) return nullptr;
    CodecPointer context(avcodec_alloc_context3(codec));
    if (!context) return nullptr;
    if (avcodec_parameters_to_context(context.get(), format.streams[0]->codecpar) < 0 ||
        avcodec_open2(context.get(), codec, nullptr) < 0) {
        return nullptr;
    }
    return context;
}

// Takes every frame that the decoder has ready. False on failure.
bool TakeFrames(AVCodecContext* decoder, std::vector<FramePointer>* frames) {
    for (;;) {
        FramePointer frame(av_frame_alloc());
        if (!frame) return false;
        const int result = avcodec_receive_frame(decoder, frame.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return true;
        if (result < 0 || frame->format != AV_PIX_FMT_BGRA) return false;
        frames->push_back(std::move(frame));
    }
}

CodecPointer OpenEncoder(const AnimationPlan& plan) {
    const AVCodec* codec = avcodec_find_encoder(AV_CODEC_ID_GIF);
    if (!codec) return nullptr;
    CodecPointer context(avcodec_alloc_context3(codec));
    if (!context) return nullptr;
    context->width = plan.width;
    context->height = plan.height;
    context->pix_fmt = AV_PIX_FMT_PAL8;
    context->time_base = {1, 20};
    // Whole frames, as they are handed in.
    av_opt_set(context->priv_data, "gifflags", "-offsetting-transdiff", 0);
    if (avcodec_open2(context.get(), codec, nullptr) < 0) return nullptr;
    return context;
}

// The image as a frame of palette indices, numbered. Null on failure.
FramePointer FrameOf(const IndexedImage& image, int64 number) {
    FramePointer frame(av_frame_alloc());
    if (!frame) return nullptr;
    frame->format = AV_PIX_FMT_PAL8;
    frame->width = image.width;
    frame->height = image.height;
    frame->pts = number;
    if (av_frame_get_buffer(frame.get(), 0) < 0) return nullptr;
    for (int32 y = 0; y < image.height; ++y) {
        const size_t width = static_cast<size_t>(image.width);
        std::memcpy(frame->data[0] + ptrdiff_t{y} * frame->linesize[0],
                    image.indices.data() + static_cast<size_t>(y) * width, width);
    }
    const GifPixelColors colors = PixelColorsOf(*image.palette);
    std::memcpy(frame->data[1], colors.pixels.data(), sizeof(colors.pixels));
    return frame;
}

// Appends every packet that the encoder has ready. False on failure.
bool TakePackets(AVCodecContext* encoder, std::vector<uint8>* bytes) {
    const PacketPointer packet(av_packet_alloc());
    if (!packet) return false;
    for (;;) {
        const int result = avcodec_receive_packet(encoder, packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF) return true;
        if (result < 0) return false;
        bytes->insert(bytes->end(), packet->data, packet->data + packet->size);
        av_packet_unref(packet.get());
    }
}

}  // namespace

bool DecodeWithLibavcodec(const std::vector<uint8>& gif, const CanvasVisitor& visit) {
    Source source{gif};
    const InputPointer input = OpenSource(&source);
    const FormatPointer format = input ? OpenFormat(input.get()) : nullptr;
    const CodecPointer decoder = format ? OpenDecoder(*format) : nullptr;
    const PacketPointer packet(av_packet_alloc());
    if (!decoder || !packet) return false;
    std::vector<FramePointer> frames;
    while (av_read_frame(format.get(), packet.get()) >= 0) {
        const bool sent = avcodec_send_packet(decoder.get(), packet.get()) >= 0;
        av_packet_unref(packet.get());
        if (!sent || !TakeFrames(decoder.get(), &frames)) return false;
    }
    if (avcodec_send_packet(decoder.get(), nullptr) < 0) return false;
    if (!TakeFrames(decoder.get(), &frames)) return false;
    for (const FramePointer& frame : frames)
        visit(frame->data[0], static_cast<size_t>(frame->linesize[0]));
    return true;
}

std::vector<uint8> EncodeWithLibavcodec(BenchAnimation& animation) {
    const CodecPointer encoder = OpenEncoder(animation.Plan());
    if (!encoder) return {};
    std::vector<uint8> bytes;
    int64 number = 0;
    for (const IndexedImage& image : animation.Images()) {
        const FramePointer frame = FrameOf(image, number++);
        if (!frame || avcodec_send_frame(encoder.get(), frame.get()) < 0) return {};
        if (!TakePackets(encoder.get(), &bytes)) return {};
    }
    if (avcodec_send_frame(encoder.get(), nullptr) < 0) return {};
    if (!TakePackets(encoder.get(), &bytes)) return {};
    return bytes;
}

}  // namespace kirto::bench
