// Decoding. "load" is GifLoad as opening a file uses it, at full size, with the palette or the
// count of colours that each frame gets; "load-raw" leaves the images at their own size. "decode"
// is the part of it that the peers do too: from compressed data to 32-bit canvases.
#include <algorithm>
#include <cstring>
#include <memory>

#include "benchmarks.h"
#include "canvas_digest.h"
#include "formats/gif/gif_lzw_decoder.h"
#include "formats/gif/gif_lzw_encoder.h"
#include "formats/gif/gif_pixel_writer.h"
#include "peers.h"

namespace kirto::bench {

namespace {

Work PrepareLoad(BenchAnimation& animation, bool full_frame) {
    const std::shared_ptr<BFile> file = BFile::OnMemory(animation.File());
    const int64 pixels = full_frame ? animation.CanvasPixels() : animation.ImagePixels();
    return [file, pixels, full_frame] {
        Prefs prefs{Prefs::BuiltIn{}};
        prefs.animation_gifloadfullframe = full_frame;
        AnimationDocument document(prefs);
        return LoadFromStart(file.get(), document) ? pixels : 0;
    };
}

// The compressed data of one image and what is needed to paint it.
struct CompressedImage {
    GifImageArea area;
    GifPixelColors colors;
    int32 min_code_size = 0;
    std::unique_ptr<BFile> data;
};

std::vector<CompressedImage> Compress(BenchAnimation& animation) {
    std::vector<CompressedImage> compressed;
    for (const IndexedImage& image : animation.Images()) {
        const int32 min_code_size = std::max(image.palette->bits, 2);
        ByteWriter data;
        GifLzwEncoder encoder(data, min_code_size);
        encoder.Add(image.indices);
        encoder.Finish();
        CompressedImage result{{image.left, image.top, image.width, image.height},
                               PixelColorsOf(*image.palette),
                               min_code_size,
                               BFile::OnMemory(data.Written())};
        result.colors.skipped_index = animation.TransparentIndex();
        compressed.push_back(std::move(result));
    }
    return compressed;
}

bool Decode(const std::vector<CompressedImage>& images, const AnimationPlan& plan,
            const CanvasVisitor& visit) {
    kirto::Work unstopped;
    std::vector<std::unique_ptr<BBitmap>> canvases;
    for (const CompressedImage& image : images) {
        auto canvas = std::make_unique<BBitmap>(BRect::OfSize(plan.width, plan.height), B_RGB32);
        if (canvas->InitCheck() != B_OK) return false;
        const bool covers = image.area.width == plan.width && image.area.height == plan.height;
        if (!canvases.empty() && !covers) {
            std::memcpy(canvas->Bits(), canvases.back()->Bits(), canvas->BitsLength());
        }
        GifPixelWriter writer(*canvas, image.area, false, image.colors);
        image.data->Seek(1, SEEK_FROM_START);  // behind the code size
        WatchedInput input(*image.data, unstopped);
        GifImageData data;
        data.Read(input, static_cast<uint64>(image.data->Size()));
        GifLzwDecoder decoder(data, image.min_code_size);
        if (!decoder.Decode(writer, unstopped, image.data->Size())) return false;
        canvases.push_back(std::move(canvas));
    }
    for (const auto& canvas : canvases)
        visit(canvas->Bits(), canvas->BytesPerRow());
    return true;
}

using Decoder = std::function<bool(const CanvasVisitor&)>;

// The work of a decoder, if it sees the pictures that GifLoad sees.
Work DecodeWork(BenchAnimation& animation, const Decoder& decode) {
    CanvasDigest digest(animation.Plan());
    const auto add = [&](const uint8* row, size_t bytes) { digest.Add(row, bytes); };
    if (!decode(add)) return nullptr;
    if (digest.Value() != LoadedDigest(animation.File(), animation.Plan())) return nullptr;
    const int64 pixels = animation.CanvasPixels();
    return [decode, pixels] {
        const bool done = decode([](const uint8* row, size_t) { benchmark::DoNotOptimize(row); });
        return done ? pixels : 0;
    };
}

Work PrepareDecode(BenchAnimation& animation) {
    const auto images = std::make_shared<std::vector<CompressedImage>>(Compress(animation));
    return DecodeWork(animation, [images, &animation](const CanvasVisitor& visit) {
        return Decode(*images, animation.Plan(), visit);
    });
}

Work PreparePeerDecode(BenchAnimation& animation, const Peer& peer) {
    return DecodeWork(animation, [peer, &animation](const CanvasVisitor& visit) {
        return peer.decode(animation.File(), visit);
    });
}

}  // namespace

void RegisterDecodeBenchmarks(BenchAnimation& animation) {
    Register("load", animation, "kirto", [&] { return PrepareLoad(animation, true); });
    Register("load-raw", animation, "kirto", [&] { return PrepareLoad(animation, false); });
    Register("decode", animation, "kirto", [&] { return PrepareDecode(animation); });
    for (const Peer& peer : Peers()) {
        Register("decode", animation, peer.name,
                 [&animation, peer] { return PreparePeerDecode(animation, peer); });
    }
}

}  // namespace kirto::bench
