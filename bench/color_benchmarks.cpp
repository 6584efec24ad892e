// Colours: counting those of each picture, an optimal palette for the first one, and the nearest of
// that palette's entries for each of its pixels.
#include "benchmarks.h"
#include "formats/gif/pixel_mapper.h"

namespace kirto::bench {

namespace {

int64 CountColors(const AnimationDocument& document) {
    const Palette& palette = *document.Current()->palette;
    int64 pixels = 0;
    for (const FramePointer& frame : document.Current()->frames) {
        if (palette.CountUniqueColors(frame->bitmap.get()) == 0) return 0;
        pixels += int64{frame->width} * frame->height;
    }
    return pixels;
}

int64 BuildPalette(const BBitmap& picture) {
    Palette palette;
    palette.Set(&picture);
    return palette.unique_colors > 0 ? int64{picture.Width()} * picture.Height() : 0;
}

int64 FindNearest(const BBitmap& picture, const Palette& palette) {
    for (int32 y = 0; y < picture.Height(); ++y) {
        for (int32 x = 0; x < picture.Width(); ++x) {
            benchmark::DoNotOptimize(palette.IndexForColor(PixelColor(&picture, x, y)));
        }
    }
    return int64{picture.Width()} * picture.Height();
}

}  // namespace

void RegisterColorBenchmarks(BenchAnimation& animation) {
    Register("count", animation, "kirto", [&]() -> Work {
        AnimationDocument& document = animation.Document();
        return [&document] { return CountColors(document); };
    });
    Register("palette", animation, "kirto", [&]() -> Work {
        const std::shared_ptr<const BBitmap> picture = animation.Document().FirstFrame()->bitmap;
        return [picture] { return BuildPalette(*picture); };
    });
    Register("nearest", animation, "kirto", [&]() -> Work {
        const std::shared_ptr<const BBitmap> picture = animation.Document().FirstFrame()->bitmap;
        const std::shared_ptr<const Palette> palette = animation.Document().Current()->palette;
        return [picture, palette] { return FindNearest(*picture, *palette); };
    });
}

}  // namespace kirto::bench
