// Arbitrary bytes as an animated WebP or PNG: every frame of it is drawn and looked at.
#include <cstdlib>
#include <memory>

#include "kit/animated/apng_reader.h"
#include "kit/animated/webp_reader.h"
#include "kit/animated_image.h"

namespace {

using kirto::AnimatedImageFormat;
using kirto::AnimatedImageReader;
using Result = AnimatedImageReader::Result;

constexpr uint64 kPixelBytes = uint64{4} << 20;
// Frames that change nothing can be very many.
constexpr int kMostFrames = 100;

// Reads all pixels, so that a sanitizer sees them.
uint32 SumOf(const AnimatedImageReader& reader, const kirto::AnimatedImageHeader& header) {
    uint32 sum = 0;
    for (int32 y = 0; y < header.height; ++y) {
        const uint8* row = reader.Row(y);
        for (int32 i = 0; i < header.width * 4; ++i)
            sum += row[i];
    }
    return sum;
}

void Draw(AnimatedImageReader& reader) {
    kirto::AnimatedImageHeader header;
    if (reader.ReadHeader(&header) != Result::kFrame) return;
    if (header.width <= 0 || header.height <= 0 || header.frame_count <= 0) std::abort();
    volatile uint32 sum = 0;
    for (int i = 0; i < kMostFrames && reader.Next() == Result::kFrame; ++i) {
        if (i >= header.frame_count || !(reader.Milliseconds() >= 0)) std::abort();
        sum = SumOf(reader, header);
    }
    static_cast<void>(sum);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto file = BFile::OnMemory({data, data + size});
    switch (kirto::AnimatedImageFormatOf(*file)) {
        case AnimatedImageFormat::kWebp: {
            kirto::WebpReader reader({data, size}, kPixelBytes);
            Draw(reader);
            break;
        }
        case AnimatedImageFormat::kApng: {
            kirto::ApngReader reader({data, size}, kPixelBytes);
            Draw(reader);
            break;
        }
        case AnimatedImageFormat::kNone:
            break;
    }
    return 0;
}
