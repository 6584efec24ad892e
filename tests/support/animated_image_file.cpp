#include "support/animated_image_file.h"

#include <array>
#include <span>
#include <stdexcept>
#include <string>
#include <webp/encode.h>
#include <webp/mux.h>
#include <zlib.h>

#include "support/random_document.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

void AppendBig(Bytes* bytes, uint32 value, int size) {
    for (int i = size - 1; i >= 0; --i)
        bytes->push_back(static_cast<uint8>(value >> (8 * i)));
}

void AppendChunk(Bytes* file, const std::string& type, const Bytes& content) {
    AppendBig(file, static_cast<uint32>(content.size()), 4);
    Bytes checked(type.begin(), type.end());
    checked.insert(checked.end(), content.begin(), content.end());
    file->insert(file->end(), checked.begin(), checked.end());
    AppendBig(file,
              static_cast<uint32>(crc32(0, checked.data(), static_cast<uInt>(checked.size()))), 4);
}

Bytes Rgba(const AnimatedImageFile::Image& image) {
    Bytes bytes;
    for (const uint32 pixel : image.pixels) {
        for (const int shift : {16, 8, 0, 24})
            bytes.push_back(static_cast<uint8>(pixel >> shift));
    }
    return bytes;
}

// The image's data as PNG has them: rows without a filter, deflated.
Bytes Deflated(const AnimatedImageFile::Image& image) {
    const Bytes pixels = Rgba(image);
    const size_t row = static_cast<size_t>(image.width) * 4;
    Bytes rows;
    for (size_t start = 0; start < pixels.size(); start += row) {
        rows.push_back(0);
        rows.insert(rows.end(), &pixels[start], &pixels[start] + row);
    }
    uLongf size = compressBound(static_cast<uLong>(rows.size()));
    Bytes deflated(size);
    compress(deflated.data(), &size, rows.data(), static_cast<uLong>(rows.size()));
    deflated.resize(size);
    return deflated;
}

Bytes ControlOf(const AnimatedImageFile::Image& image, uint32 sequence) {
    Bytes control;
    AppendBig(&control, sequence, 4);
    for (const int32 value : {image.width, image.height, image.x, image.y})
        AppendBig(&control, static_cast<uint32>(value), 4);
    AppendBig(&control, static_cast<uint32>(image.milliseconds), 2);
    AppendBig(&control, 1000, 2);
    control.push_back(static_cast<uint8>(image.dispose));
    control.push_back(image.over ? 1 : 0);
    return control;
}

void Require(bool done) {
    if (!done) throw std::runtime_error("libwebp has refused a frame");
}

WebPMuxFrameInfo FrameInfo(const AnimatedImageFile::Image& image, const WebPData& bitstream) {
    WebPMuxFrameInfo info{};
    info.bitstream = bitstream;
    info.id = WEBP_CHUNK_ANMF;
    info.x_offset = image.x;
    info.y_offset = image.y;
    info.duration = image.milliseconds;
    const bool clears = image.dispose == AnimatedImageFile::Dispose::kBackground;
    info.dispose_method = clears ? WEBP_MUX_DISPOSE_BACKGROUND : WEBP_MUX_DISPOSE_NONE;
    info.blend_method = image.over ? WEBP_MUX_BLEND : WEBP_MUX_NO_BLEND;
    return info;
}

void PushFrame(WebPMux* mux, const AnimatedImageFile::Image& image) {
    const Bytes pixels = Rgba(image);
    WebPData bitstream;
    WebPDataInit(&bitstream);
    uint8_t* encoded = nullptr;
    bitstream.size =
        WebPEncodeLosslessRGBA(pixels.data(), image.width, image.height, image.width * 4, &encoded);
    bitstream.bytes = encoded;
    const WebPMuxFrameInfo info = FrameInfo(image, bitstream);
    const bool pushed = WebPMuxPushFrame(mux, &info, 1) == WEBP_MUX_OK;
    WebPFree(encoded);
    Require(pushed);
}

void Paint(const AnimatedImageFile::Image& image, int32 canvas_width, std::vector<uint32>* canvas) {
    for (int32 y = 0; y < image.height; ++y) {
        for (int32 x = 0; x < image.width; ++x) {
            const uint32 pixel = image.pixels[static_cast<size_t>(y * image.width + x)];
            uint32& target =
                (*canvas)[static_cast<size_t>((image.y + y) * canvas_width + image.x + x)];
            const bool visible = pixel >> 24 != 0;
            if (visible || !image.over) target = visible ? pixel : 0;
        }
    }
}

}  // namespace

std::vector<uint8> AnimatedImageFile::Apng(bool still) const {
    Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes header;
    AppendBig(&header, static_cast<uint32>(width), 4);
    AppendBig(&header, static_cast<uint32>(height), 4);
    // 8 bits of red, green, blue and alpha each.
    header.insert(header.end(), {8, 6, 0, 0, 0});
    AppendChunk(&file, "IHDR", header);
    Bytes animation;
    AppendBig(&animation, static_cast<uint32>(frames.size()), 4);
    AppendBig(&animation, static_cast<uint32>(plays), 4);
    AppendChunk(&file, "acTL", animation);
    if (still) {
        Image image;
        image.width = width;
        image.height = height;
        image.pixels.assign(static_cast<size_t>(width) * static_cast<size_t>(height), 0xFF123456);
        AppendChunk(&file, "IDAT", Deflated(image));
    }
    uint32 sequence = 0;
    for (const Image& image : frames) {
        const bool is_default = !still && &image == &frames.front();
        AppendChunk(&file, "fcTL", ControlOf(image, sequence++));
        Bytes data;
        if (!is_default) AppendBig(&data, sequence++, 4);
        const Bytes deflated = Deflated(image);
        data.insert(data.end(), deflated.begin(), deflated.end());
        AppendChunk(&file, is_default ? "IDAT" : "fdAT", data);
    }
    AppendChunk(&file, "IEND", {});
    return file;
}

std::vector<uint8> AnimatedImageFile::Webp() const {
    WebPMux* mux = WebPMuxNew();
    const WebPMuxAnimParams parameters{0, plays};
    Require(WebPMuxSetAnimationParams(mux, &parameters) == WEBP_MUX_OK);
    Require(WebPMuxSetCanvasSize(mux, width, height) == WEBP_MUX_OK);
    for (const Image& image : frames)
        PushFrame(mux, image);
    WebPData assembled;
    WebPDataInit(&assembled);
    Require(WebPMuxAssemble(mux, &assembled) == WEBP_MUX_OK);
    const Bytes file(assembled.bytes, assembled.bytes + assembled.size);
    WebPDataClear(&assembled);
    WebPMuxDelete(mux);
    return file;
}

std::vector<std::vector<uint32>> AnimatedImageFile::Shown() const {
    std::vector<std::vector<uint32>> shown;
    std::vector<uint32> canvas(static_cast<size_t>(width) * static_cast<size_t>(height));
    for (const Image& image : frames) {
        const std::vector<uint32> before = canvas;
        Paint(image, width, &canvas);
        shown.push_back(canvas);
        if (image.dispose == Dispose::kPrevious) canvas = before;
        if (image.dispose != Dispose::kBackground) continue;
        Image nothing = image;
        nothing.over = false;
        nothing.pixels.assign(nothing.pixels.size(), 0);
        Paint(nothing, width, &canvas);
    }
    return shown;
}

AnimatedImageFile RandomAnimatedImageFile(uint32 seed, bool webp) {
    SeededChoices choices(seed);
    AnimatedImageFile file;
    file.width = choices.Between(1, 30);
    file.height = choices.Between(1, 30);
    file.plays = choices.Between(0, 3);
    const int32 count = choices.Between(2, 6);
    for (int32 i = 0; i < count; ++i) {
        AnimatedImageFile::Image image;
        if (webp || i > 0) {
            image.x = choices.Between(0, file.width - 1) / 2 * 2;
            image.y = choices.Between(0, file.height - 1) / 2 * 2;
            image.width = choices.Between(1, file.width - image.x);
            image.height = choices.Between(1, file.height - image.y);
        } else {
            // The first frame of a PNG is its still image as well.
            image.width = file.width;
            image.height = file.height;
        }
        image.milliseconds = choices.Between(11, 500);
        image.over = choices.OneIn(2);
        image.dispose = static_cast<AnimatedImageFile::Dispose>(choices.Below(webp ? 2 : 3));
        for (int32 j = 0; j < image.width * image.height; ++j) {
            const uint32 alpha = choices.OneIn(3) ? 0 : 255;
            const uint32 any = image.over ? alpha : choices.Below(256);
            image.pixels.push_back(any << 24 | choices.Below(1 << 24));
        }
        file.frames.push_back(std::move(image));
    }
    return file;
}

}  // namespace kirto::test
