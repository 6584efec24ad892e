#include "platform/targa.h"

#include <vector>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_NO_HDR
#define STBI_NO_LINEAR
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#include <stb/stb_image_write.h>
#pragma GCC diagnostic pop

namespace kirto {

namespace {

constexpr int64 kMaxFileBytes = int64{1} << 30;
// A packed run of 128 pixels takes at least two bytes, so a file can't hold more pixels a byte.
constexpr int64 kMaxPixelsPerByte = 64;

struct StbFree {
    void operator()(uint8* pixels) const { stbi_image_free(pixels); }
};

bool ReadWhole(BFile& source, std::vector<uint8>* bytes) {
    const int64 size = source.Size();
    if (size <= 0 || size > kMaxFileBytes) return false;
    bytes->resize(static_cast<size_t>(size));
    return source.Seek(0, SEEK_FROM_START) == 0 && source.ReadExactly(bytes->data(), bytes->size());
}

void CopyPixels(const uint8* rgba, bool has_alpha, BBitmap* bitmap) {
    uint8* target = bitmap->Bits();
    for (size_t left = bitmap->BitsLength() / 4; left > 0; --left, rgba += 4, target += 4) {
        target[0] = rgba[2];
        target[1] = rgba[1];
        target[2] = rgba[0];
        target[3] = has_alpha ? rgba[3] : 255;
    }
}

void WriteBytes(void* context, void* data, int size) {
    static_cast<BFile*>(context)->Write(data, static_cast<size_t>(size));
}

}  // namespace

status_t ReadTarga(BFile& source, std::shared_ptr<PixelBudget> budget,
                   std::shared_ptr<BBitmap>* result) {
    std::vector<uint8> bytes;
    if (!ReadWhole(source, &bytes)) return B_BAD_DATA;
    const int size = static_cast<int>(bytes.size());
    int width = 0;
    int height = 0;
    int components = 0;
    if (!stbi_info_from_memory(bytes.data(), size, &width, &height, &components)) {
        return B_BAD_DATA;
    }
    const int64 pixels = int64{width} * height;
    if (pixels / kMaxPixelsPerByte > size) return B_BAD_DATA;
    const bool has_alpha = components == 2 || components == 4;
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height),
                                            has_alpha ? B_RGBA32 : B_RGB32, std::move(budget));
    if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
    const std::unique_ptr<uint8, StbFree> decoded(
        stbi_load_from_memory(bytes.data(), size, &width, &height, &components, 4));
    if (!decoded || width != bitmap->Width() || height != bitmap->Height()) return B_BAD_DATA;
    CopyPixels(decoded.get(), has_alpha, bitmap.get());
    *result = std::move(bitmap);
    return B_OK;
}

status_t WriteTarga(const uint8* rgba, int32 width, int32 height, bool with_alpha, bool packed,
                    BFile& destination) {
    std::vector<uint8> rgb;
    if (!with_alpha) {
        const size_t pixels = static_cast<size_t>(width) * static_cast<size_t>(height);
        rgb.reserve(pixels * 3);
        for (size_t i = 0; i < pixels; ++i) {
            rgb.insert(rgb.end(), rgba + i * 4, rgba + i * 4 + 3);
        }
    }
    stbi_write_tga_with_rle = packed ? 1 : 0;
    const void* pixels = with_alpha ? rgba : rgb.data();
    const int written =
        stbi_write_tga_to_func(WriteBytes, &destination, width, height, with_alpha ? 4 : 3, pixels);
    return written && destination.WriteStatus() == B_OK ? B_OK : B_IO_ERROR;
}

}  // namespace kirto
