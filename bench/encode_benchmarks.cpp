// Encoding. "encode" compresses ready palette indices, as the peers do; "save" and "save-dithered"
// are GifSave as saving a file uses it, from 32-bit pictures.
#include <algorithm>
#include <memory>

#include "benchmarks.h"
#include "canvas_digest.h"
#include "formats/gif/gif_lzw_encoder.h"
#include "peers.h"

namespace kirto::bench {

namespace {

int64 Encode(BenchAnimation& animation) {
    ByteWriter output;
    for (const IndexedImage& image : animation.Images()) {
        GifLzwEncoder encoder(output, std::max(image.palette->bits, 2));
        const size_t width = static_cast<size_t>(image.width);
        for (size_t row = 0; row < image.indices.size(); row += width)
            encoder.Add({image.indices.data() + row, width});
        encoder.Finish();
    }
    return animation.ImagePixels();
}

bool SameImages(BenchAnimation& animation, const std::vector<uint8>& gif) {
    return LoadedDigest(gif, animation.Plan()) == LoadedDigest(animation.File(), animation.Plan());
}

Work PrepareEncode(BenchAnimation& animation) {
    animation.Images();
    return [&animation] { return Encode(animation); };
}

Work PreparePeerEncode(BenchAnimation& animation, const Peer& peer) {
    const std::vector<uint8> result = peer.encode(animation);
    if (result.empty()) return nullptr;
    if (peer.writes_files && !SameImages(animation, result)) return nullptr;
    return
        [&animation, peer] { return peer.encode(animation).empty() ? 0 : animation.ImagePixels(); };
}

Work PrepareSave(BenchAnimation& animation, bool dither) {
    AnimationDocument& document = animation.Document();
    const int64 pixels = animation.ImagePixels();
    return
        [&document, pixels, dither] { return SaveToMemory(document, dither).empty() ? 0 : pixels; };
}

}  // namespace

void RegisterEncodeBenchmarks(BenchAnimation& animation) {
    Register("encode", animation, "kirto", [&] { return PrepareEncode(animation); });
    for (const Peer& peer : Peers()) {
        if (animation.Plan().differences && !peer.takes_any_images) continue;
        Register("encode", animation, peer.name,
                 [&animation, peer] { return PreparePeerEncode(animation, peer); });
    }
    Register("save", animation, "kirto", [&] { return PrepareSave(animation, false); });
    Register("save-dithered", animation, "kirto", [&] { return PrepareSave(animation, true); });
}

}  // namespace kirto::bench
