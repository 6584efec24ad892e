#include "formats/export/png_file.h"

#include <array>

#include "formats/export/png_data.h"

namespace kirto {

namespace {

constexpr std::array<uint8, 8> kPngStart = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

}  // namespace

std::vector<uint8> PngStart(int32 width, int32 height, const PngPixels& pixels) {
    std::vector<uint8> content;
    AppendBig32(static_cast<uint32>(width), &content);
    AppendBig32(static_cast<uint32>(height), &content);
    content.push_back(static_cast<uint8>(pixels.BitDepth()));
    content.push_back(pixels.ColorType());
    content.insert(content.end(), 3, 0);  // the only ways to compress and to filter; not interlaced
    std::vector<uint8> file(kPngStart.begin(), kPngStart.end());
    AppendPngChunk("IHDR", content, &file);
    return file;
}

void AppendPngColors(const PngPixels& pixels, std::vector<uint8>* file) {
    if (const auto palette = pixels.Palette(); !palette.empty())
        AppendPngChunk("PLTE", palette, file);
    if (const auto alpha = pixels.PaletteAlpha(); !alpha.empty())
        AppendPngChunk("tRNS", alpha, file);
}

std::vector<uint8> EncodePng(std::span<const uint8> canvas, int32 width, int32 height,
                             const Work& work) {
    PngPixels pixels;
    pixels.Count(canvas);
    pixels.Settle(false);
    const std::vector<uint8> rows = pixels.Rows(canvas, width, {0, 0, width, height}, nullptr);
    std::vector<uint8> file = PngStart(width, height, pixels);
    AppendPngColors(pixels, &file);
    AppendPngChunk("IDAT", CompressPngRows(rows, pixels.RowBytes(width), pixels.PixelBytes(), work),
                   &file);
    AppendPngChunk("IEND", {}, &file);
    return file;
}

}  // namespace kirto
