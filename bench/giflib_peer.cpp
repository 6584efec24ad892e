// giflib: decoding to palette indices a row at a time, which we expand to canvases, and encoding of
// palette indices.
#include <algorithm>
#include <cstring>
#include <gif_lib.h>

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

struct CloseDecoder {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};
struct CloseEncoder {
    void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
};
struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using Decoder = std::unique_ptr<GifFileType, CloseDecoder>;

// Reads an extension; *transparent becomes the transparent index of a control block.
bool ReadExtension(GifFileType* gif, int* transparent) {
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

// Reads to the next image's rows. False at the end of the file and on failure, which *failed tells
// apart.
bool NextImage(GifFileType* gif, int* transparent, bool* failed) {
    *failed = true;
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (record != IMAGE_DESC_RECORD_TYPE) {
        if (DGifGetRecordType(gif, &record) != GIF_OK) return false;
        if (record == EXTENSION_RECORD_TYPE && !ReadExtension(gif, transparent)) return false;
        if (record == TERMINATE_RECORD_TYPE) {
            *failed = false;
            return false;
        }
    }
    if (DGifGetImageDesc(gif) != GIF_OK) return false;
    const GifImageDesc& image = gif->Image;
    const bool fits = image.Left + image.Width <= gif->SWidth &&
                      image.Top + image.Height <= gif->SHeight && !image.Interlace;
    *failed = !fits;
    return fits;
}

std::array<uint32, 256> PixelsOf(const ColorMapObject& map) {
    std::array<uint32, 256> pixels{};
    for (size_t i = 0; i < static_cast<size_t>(map.ColorCount); ++i) {
        const uint8 pixel[4] = {map.Colors[i].Blue, map.Colors[i].Green, map.Colors[i].Red, 255};
        std::memcpy(&pixels[i], pixel, sizeof(pixel));
    }
    return pixels;
}

// Paints the image on a canvas that shows the picture before it.
bool PaintImage(GifFileType* gif, int transparent, Canvases* result) {
    const GifImageDesc& image = gif->Image;
    const ColorMapObject* map = image.ColorMap ? image.ColorMap : gif->SColorMap;
    if (!map) return false;
    const bool covers = image.Width == gif->SWidth && image.Height == gif->SHeight;
    uint8* canvas = result->Add(!covers || transparent != NO_TRANSPARENT_COLOR);
    const std::array<uint32, 256> pixels = PixelsOf(*map);
    std::vector<uint8> indices(static_cast<size_t>(image.Width));
    for (int32 y = image.Top; y < image.Top + image.Height; ++y) {
        if (DGifGetLine(gif, indices.data(), image.Width) != GIF_OK) return false;
        uint8* pixel = canvas + static_cast<size_t>(y) * result->BytesPerRow() +
                       static_cast<size_t>(image.Left) * 4;
        for (const uint8 index : indices) {
            if (index != transparent) std::memcpy(pixel, &pixels[index], 4);
            pixel += 4;
        }
    }
    return true;
}

void TakeScreen(const GifFileType& gif, IndexedAnimation* result) {
    result->width = gif.SWidth;
    result->height = gif.SHeight;
    for (int i = 0; gif.SColorMap && i < gif.SColorMap->ColorCount; ++i) {
        const GifColorType& color = gif.SColorMap->Colors[i];
        result->colors[static_cast<size_t>(i)] = {color.Red, color.Green, color.Blue, 255};
    }
}

bool WriteImage(GifFileType* gif, const IndexedImage& image) {
    const GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 5, image.transparent_index};
    GifByteType block[4];
    const int size = static_cast<int>(EGifGCBToExtension(&control, block));
    if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, size, block) != GIF_OK) return false;
    if (EGifPutImageDesc(gif, image.left, image.top, image.width, image.height, false, nullptr) !=
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

uint8* Canvases::Add(bool shows_last) {
    canvases.emplace_back(new uint8[Bytes()]);
    uint8* canvas = canvases.back().get();
    if (shows_last && canvases.size() > 1) {
        std::memcpy(canvas, canvases[canvases.size() - 2].get(), Bytes());
    } else if (shows_last) {
        std::memset(canvas, 0, Bytes());
    }
    return canvas;
}

std::optional<Canvases> DecodeWithGiflib(const std::vector<uint8>& gif) {
    Source source{gif};
    const Decoder file(DGifOpen(&source, ReadSource, nullptr));
    if (!file) return std::nullopt;
    Canvases result{file->SWidth, file->SHeight, {}};
    bool failed = false;
    int transparent = NO_TRANSPARENT_COLOR;
    while (NextImage(file.get(), &transparent, &failed)) {
        if (!PaintImage(file.get(), transparent, &result)) return std::nullopt;
    }
    if (failed) return std::nullopt;
    return result;
}

bool ReadWithGiflib(const std::vector<uint8>& gif, IndexedAnimation* result) {
    Source source{gif};
    const Decoder file(DGifOpen(&source, ReadSource, nullptr));
    if (!file) return false;
    if (result) TakeScreen(*file, result);
    bool failed = false;
    int transparent = NO_TRANSPARENT_COLOR;
    std::vector<uint8> row;
    while (NextImage(file.get(), &transparent, &failed)) {
        const GifImageDesc& place = file->Image;
        IndexedImage image{place.Left, place.Top, place.Width, place.Height, transparent, {}};
        row.resize(static_cast<size_t>(place.Width));
        if (result) image.indices.reserve(row.size() * static_cast<size_t>(place.Height));
        for (int32 y = 0; y < place.Height; ++y) {
            if (DGifGetLine(file.get(), row.data(), place.Width) != GIF_OK) return false;
            if (result) image.indices.insert(image.indices.end(), row.begin(), row.end());
        }
        if (result) result->images.push_back(std::move(image));
    }
    return !failed;
}

bool WriteWithGiflib(const IndexedAnimation& animation, const std::string& path) {
    std::unique_ptr<GifFileType, CloseEncoder> file(EGifOpenFileName(path.c_str(), false, nullptr));
    const std::unique_ptr<ColorMapObject, FreeMap> map(GifMakeMapObject(256, nullptr));
    if (!file || !map) return false;
    for (size_t i = 0; i < animation.colors.size(); ++i) {
        const rgb_color& color = animation.colors[i];
        map->Colors[i] = {color.red, color.green, color.blue};
    }
    EGifSetGifVersion(file.get(), true);
    if (EGifPutScreenDesc(file.get(), animation.width, animation.height, 8, 0, map.get()) !=
        GIF_OK) {
        return false;
    }
    for (const IndexedImage& image : animation.images) {
        if (!WriteImage(file.get(), image)) return false;
    }
    return EGifCloseFile(file.release(), nullptr) == GIF_OK;
}

}  // namespace kirto::bench
