// giflib: decoding to palette indices a row at a time, which we expand to canvases, and encoding of
// palette indices.
#include <algorithm>
#include <cstring>
#include <gif_lib.h>
#include <memory>

#include "formats/gif/gif_pixel_writer.h"
#include "kit/bitmap.h"
#include "peers.h"

namespace kirto::bench {

namespace {

struct Source {
    const std::vector<uint8>& bytes;
    size_t position = 0;
};

int ReadSource(GifFileType* gif, GifByteType* buffer, int size) {
    auto* source = static_cast<Source*>(gif->UserData);
    const size_t left = source->bytes.size() - source->position;
    const size_t count = std::min(left, static_cast<size_t>(size));
    std::memcpy(buffer, source->bytes.data() + source->position, count);
    source->position += count;
    return static_cast<int>(count);
}

int AppendBytes(GifFileType* gif, const GifByteType* bytes, int size) {
    auto* target = static_cast<std::vector<uint8>*>(gif->UserData);
    target->insert(target->end(), bytes, bytes + size);
    return size;
}

struct CloseDecoder {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};
struct CloseEncoder {
    void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
};

GifPixelColors ColorsOf(const ColorMapObject& map, int32 transparent) {
    GifPixelColors colors;
    for (size_t i = 0; i < static_cast<size_t>(map.ColorCount); ++i) {
        const GifColorType& color = map.Colors[i];
        colors.pixels[i] = PixelOf({color.Red, color.Green, color.Blue, 255});
    }
    colors.skipped_index = transparent;
    return colors;
}

void PaintRow(const std::vector<uint8>& indices, const GifPixelColors& colors, uint8* target) {
    for (const uint8 index : indices) {
        if (index != colors.skipped_index) std::memcpy(target, &colors.pixels[index], 4);
        target += 4;
    }
}

// Reads an image onto a canvas that shows the picture before it. No canvas: it failed.
std::unique_ptr<BBitmap> ReadImage(GifFileType* gif, const BBitmap* before, int32 transparent) {
    if (DGifGetImageDesc(gif) != GIF_OK || gif->Image.Interlace) return nullptr;
    const GifImageDesc& image = gif->Image;
    if (image.Left + image.Width > gif->SWidth || image.Top + image.Height > gif->SHeight) {
        return nullptr;
    }
    const ColorMapObject* map = image.ColorMap ? image.ColorMap : gif->SColorMap;
    auto canvas = std::make_unique<BBitmap>(BRect::OfSize(gif->SWidth, gif->SHeight), B_RGB32);
    if (!map || canvas->InitCheck() != B_OK) return nullptr;
    const bool covers = image.Width == gif->SWidth && image.Height == gif->SHeight;
    if (before && !covers) std::memcpy(canvas->Bits(), before->Bits(), canvas->BitsLength());

    const GifPixelColors colors = ColorsOf(*map, transparent);
    std::vector<uint8> indices(static_cast<size_t>(image.Width));
    for (int32 y = 0; y < image.Height; ++y) {
        if (DGifGetLine(gif, indices.data(), image.Width) != GIF_OK) return nullptr;
        PaintRow(indices, colors, canvas->Row(image.Top + y) + static_cast<size_t>(image.Left) * 4);
    }
    return canvas;
}

bool ReadExtension(GifFileType* gif, int32* transparent) {
    int label = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(gif, &label, &block) != GIF_OK) return false;
    GraphicsControlBlock control;
    if (block && label == GRAPHICS_EXT_FUNC_CODE &&
        DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
        *transparent = control.TransparentColor;
    }
    while (block) {
        if (DGifGetExtensionNext(gif, &block) != GIF_OK) return false;
    }
    return true;
}

struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ColorMap = std::unique_ptr<ColorMapObject, FreeMap>;

ColorMap MapOf(const Palette& palette) {
    ColorMap map(GifMakeMapObject(1 << palette.bits, nullptr));
    for (size_t i = 0; map && i < static_cast<size_t>(map->ColorCount); ++i) {
        const rgb_color& color = palette.colors[i];
        map->Colors[i] = {color.red, color.green, color.blue};
    }
    return map;
}

bool WriteImage(GifFileType* gif, const IndexedImage& image, int32 transparent) {
    const GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 5, transparent};
    GifByteType block[4];
    const int size = static_cast<int>(EGifGCBToExtension(&control, block));
    if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, size, block) != GIF_OK) return false;
    const ColorMap map = image.local_palette ? MapOf(*image.palette) : nullptr;
    if (EGifPutImageDesc(gif, image.left, image.top, image.width, image.height, false, map.get()) !=
        GIF_OK) {
        return false;
    }
    // giflib masks the pixels where they stand.
    std::vector<uint8> indices = image.indices;
    for (int32 y = 0; y < image.height; ++y) {
        uint8* row = indices.data() + static_cast<size_t>(y) * static_cast<size_t>(image.width);
        if (EGifPutLine(gif, row, image.width) != GIF_OK) return false;
    }
    return true;
}

}  // namespace

bool DecodeWithGiflib(const std::vector<uint8>& gif, const CanvasVisitor& visit) {
    Source source{gif};
    const std::unique_ptr<GifFileType, CloseDecoder> file(DGifOpen(&source, ReadSource, nullptr));
    if (!file) return false;
    std::vector<std::unique_ptr<BBitmap>> canvases;
    int32 transparent = NO_TRANSPARENT_COLOR;
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (record != TERMINATE_RECORD_TYPE) {
        if (DGifGetRecordType(file.get(), &record) != GIF_OK) return false;
        if (record == EXTENSION_RECORD_TYPE && !ReadExtension(file.get(), &transparent)) {
            return false;
        }
        if (record != IMAGE_DESC_RECORD_TYPE) continue;
        const BBitmap* before = canvases.empty() ? nullptr : canvases.back().get();
        canvases.push_back(ReadImage(file.get(), before, transparent));
        if (!canvases.back()) return false;
    }
    for (const auto& canvas : canvases)
        visit(canvas->Bits(), canvas->BytesPerRow());
    return true;
}

std::vector<uint8> EncodeWithGiflib(BenchAnimation& animation) {
    std::vector<uint8> bytes;
    std::unique_ptr<GifFileType, CloseEncoder> file(EGifOpen(&bytes, AppendBytes, nullptr));
    if (!file) return {};
    EGifSetGifVersion(file.get(), true);
    const AnimationPlan& plan = animation.Plan();
    const ColorMap map = MapOf(*animation.Document().Current()->palette);
    if (EGifPutScreenDesc(file.get(), plan.width, plan.height, 8, 0, map.get()) != GIF_OK) {
        return {};
    }
    for (const IndexedImage& image : animation.Images()) {
        if (!WriteImage(file.get(), image, animation.TransparentIndex())) return {};
    }
    file.reset();
    return bytes;
}

}  // namespace kirto::bench
