// Files become pictures. Files lie in memory before the clock starts.
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
        for (int32 y = 0; y < frame->height; ++y)
            digest.AddRow(PixelRow(*frame, y), frame->width);
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
    const std::vector<uint8> bytes = ReadFile(path);
    std::unique_ptr<OwnDocument> own;
    const bool done = measurement.Run([&] {
        own = std::make_unique<OwnDocument>();
        return LoadAnimation(path, bytes, 0, own->document);
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

constexpr Job kJobs[] = {
    {"open", "FILE", Open},
    {"giflib", "FILE.gif", DecodeGif},
    {"giflib-rows", "FILE.gif", ReadRows},
    {"libavcodec", "FILE.flc", DecodeFlc},
};

}  // namespace

std::span<const Job> ReadingJobs() {
    return kJobs;
}

bool LoadAnimation(const std::string& path, const std::vector<uint8>& bytes, int32 position,
                   AnimationDocument& document) {
    const std::unique_ptr<BFile> file = BFile::OnMemory(bytes);
    if (path.ends_with(".flc")) return !FliLoad(file.get(), position, document).failed;
    return !GifLoad(file.get(), position, document).failed;
}

}  // namespace kirto::bench
