// Files become pictures. Files lie in memory before the clock starts.
#include <cstdlib>

#include "canvas_digest.h"
#include "formats/fli/fli_load.h"
#include "formats/gif/gif_load.h"
#include "jobs.h"
#include "peers.h"
#include "pixels.h"

namespace kirto::bench {

namespace {

uint64 DigestOf(const AnimationDocument& document) {
    CanvasDigest digest;
    for (const FramePointer& frame : document.Current()->frames) {
        std::vector<uint8> row(static_cast<size_t>(frame->width) * 4);
        for (int32 y = 0; y < frame->height; ++y) {
            ReadPixels(*frame, y, row.data());
            digest.AddRow(row.data(), frame->width);
        }
    }
    return digest.Value();
}

uint64 DigestOf(const Canvases& canvases) {
    CanvasDigest digest;
    for (const auto& canvas : canvases.canvases) {
        for (int32 y = 0; y < canvases.height; ++y)
            digest.AddRow(canvas.get() + static_cast<size_t>(y) * canvases.BytesPerRow(),
                          canvases.width);
    }
    return digest.Value();
}

bool Open(const Arguments& arguments, Measurement& measurement) {
    const std::string& path = arguments[0];
    const std::unique_ptr<BFile> file = FileInMemory(path);
    std::unique_ptr<OwnDocument> own;
    const bool done = measurement.Run([&] {
        own = std::make_unique<OwnDocument>();
        return LoadAnimation(path, *file, 0, own->document);
    });
    if (!done) return false;
    measurement.SetFrames(own->document.FrameCount());
    if (measurement.WantsDigest()) measurement.SetDigest(DigestOf(own->document));
    return true;
}

using Decoder = std::optional<Canvases> (*)(const std::vector<uint8>& file);

bool Decode(Decoder decoder, const std::string& path, Measurement& measurement) {
    const std::vector<uint8> bytes = ReadFile(path);
    std::optional<Canvases> canvases;
    const bool done = measurement.Run([&] {
        canvases = decoder(bytes);
        return canvases.has_value();
    });
    if (!done) return false;
    measurement.SetFrames(static_cast<int64>(canvases->canvases.size()));
    if (measurement.WantsDigest()) measurement.SetDigest(DigestOf(*canvases));
    return true;
}

bool DecodeGif(const Arguments& arguments, Measurement& measurement) {
    return Decode(DecodeWithGiflib, arguments[0], measurement);
}

bool DecodeFlc(const Arguments& arguments, Measurement& measurement) {
    return Decode(DecodeWithLibavcodec, arguments[0], measurement);
}

bool ReadRows(const Arguments& arguments, Measurement& measurement) {
    const std::vector<uint8> bytes = ReadFile(arguments[0]);
    return measurement.Run([&] { return ReadWithGiflib(bytes, nullptr); });
}

constexpr int32 kBlock = 5;

// The difference of one color component's sums over kBlock x kBlock pixels. Rows have row_bytes.
int32 BlockDifference(const uint8* first, const uint8* second, size_t row_bytes) {
    int32 difference = 0;
    for (size_t y = 0; y < kBlock; ++y) {
        for (size_t x = 0; x < kBlock; ++x) {
            const size_t at = y * row_bytes + x * 4;
            difference += first[at] - second[at];
        }
    }
    return std::abs(difference);
}

// The mean difference of two pictures' color components, each blurred over a block.
double BlurredError(const uint8* first, const uint8* second, int32 width, int32 height) {
    const size_t row_bytes = static_cast<size_t>(width) * 4;
    int64 sum = 0;
    int64 components = 0;
    for (int32 y = 0; y + kBlock <= height; y += kBlock) {
        for (int32 x = 0; x + kBlock <= width; x += kBlock) {
            const size_t at = static_cast<size_t>(y) * row_bytes + static_cast<size_t>(x) * 4;
            for (size_t component = at; component < at + 3; ++component)
                sum += BlockDifference(first + component, second + component, row_bytes);
            components += 3;
        }
    }
    return static_cast<double>(sum) / (kBlock * kBlock) / static_cast<double>(components);
}

// How far the pictures of a GIF are from those of a clip in 4 bytes a pixel.
bool MeasureError(const Arguments& arguments, Measurement& measurement) {
    const std::vector<uint8> clip = ReadFile(arguments[0]);
    const std::optional<Canvases> canvases = DecodeWithGiflib(ReadFile(arguments[1]));
    if (!canvases || canvases->Bytes() * canvases->canvases.size() != clip.size()) return false;
    double sum = 0;
    const uint8* original = clip.data();
    for (const auto& canvas : canvases->canvases) {
        sum += BlurredError(original, canvas.get(), canvases->width, canvases->height);
        original += canvases->Bytes();
    }
    measurement.SetFrames(static_cast<int64>(canvases->canvases.size()));
    measurement.SetError(sum / static_cast<double>(canvases->canvases.size()));
    return true;
}

constexpr Job kJobs[] = {
    {"open", "FILE", Open},
    {"giflib", "FILE.gif", DecodeGif},
    {"giflib-rows", "FILE.gif", ReadRows},
    {"libavcodec", "FILE.flc", DecodeFlc},
    {"error", "CLIP.raw FILE.gif", MeasureError},
};

}  // namespace

std::span<const Job> ReadingJobs() {
    return kJobs;
}

std::unique_ptr<BFile> FileInMemory(const std::string& path) {
    return BFile::OnMemory(ReadFile(path));
}

bool LoadAnimation(const std::string& path, BFile& file, int32 position,
                   AnimationDocument& document) {
    file.Seek(0, SEEK_FROM_START);
    if (path.ends_with(".flc")) return !FliLoad(&file, position, document).failed;
    return !GifLoad(&file, position, document).failed;
}

}  // namespace kirto::bench
