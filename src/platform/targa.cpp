#include "platform/targa.h"

#include <algorithm>

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

#include "platform/allocation.h"
#include "platform/byte_order.h"

namespace kirto {

namespace {

constexpr int64 kHeaderBytes = 18;
constexpr int64 kDescriptorOffset = 17;
constexpr uint8 kAlphaBits = 8;
constexpr uint8 kFromTheTop = 0x20;
constexpr int32 kMaxSide = 65535;

// What a header says about the bytes behind it.
struct TargaLayout {
    int32 width = 0;
    int32 height = 0;
    bool has_alpha = false;
    bool packed = false;
    int64 first_pixel = 0;  // offset of the pixels: behind the comment and the colour table
    int64 pixel_bytes = 0;  // of one pixel, or of its index

    int64 Pixels() const { return int64{width} * height; }
    // The fewest and the most bytes that the pixels can take; a packet of one to 128 pixels opens
    // with a byte of its own.
    int64 LeastBytes() const {
        return packed ? (Pixels() + 127) / 128 * (1 + pixel_bytes) : Pixels() * pixel_bytes;
    }
    int64 MostBytes() const { return Pixels() * (packed ? 1 + pixel_bytes : pixel_bytes); }
};

struct StbFree {
    void operator()(uint8* pixels) const { stbi_image_free(pixels); }
};

// False for what is no header of a Targa file.
bool ReadHeader(BFile& source, TargaLayout* layout) {
    uint8 header[kHeaderBytes];
    if (source.Seek(0, SEEK_FROM_START) != 0) return false;
    if (!source.ReadExactly(header, sizeof(header))) return false;
    int components = 0;
    if (!stbi_info_from_memory(header, sizeof(header), &layout->width, &layout->height,
                               &components)) {
        return false;
    }
    layout->has_alpha = components == 2 || components == 4;
    layout->packed = header[2] >= 8;
    layout->pixel_bytes = (header[16] + 7) / 8;
    layout->first_pixel = kHeaderBytes + header[0];
    if (header[1] != 0) {
        // The library takes the index of the table's first entry for bytes to skip.
        const int64 entry_bytes = (header[7] + 7) / 8;
        layout->first_pixel += ReadLittle16(header + 3) + ReadLittle16(header + 5) * entry_bytes;
    }
    return true;
}

// True when the packets bring all pixels before the bytes end.
bool HasAllPackets(const uint8* bytes, int64 size, const TargaLayout& layout) {
    int64 offset = layout.first_pixel;
    for (int64 left = layout.Pixels(); left > 0;) {
        if (offset >= size) return false;
        const int64 pixels = 1 + (bytes[offset] & 0x7F);
        const bool run = (bytes[offset] & 0x80) != 0;
        offset += 1 + (run ? 1 : std::min(pixels, left)) * layout.pixel_bytes;
        left -= pixels;
    }
    return offset <= size;
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

// The library takes missing bytes for whatever is in memory, so it is only given whole pictures.
status_t Decode(const uint8* bytes, int64 size, const TargaLayout& layout, BBitmap* bitmap) {
    if (layout.packed && !HasAllPackets(bytes, size, layout)) return B_BAD_DATA;
    int width = 0;
    int height = 0;
    int components = 0;
    const std::unique_ptr<uint8, StbFree> decoded(
        stbi_load_from_memory(bytes, static_cast<int>(size), &width, &height, &components, 4));
    if (!decoded || width != bitmap->Width() || height != bitmap->Height()) return B_BAD_DATA;
    CopyPixels(decoded.get(), layout.has_alpha, bitmap);
    return B_OK;
}

void WriteBytes(void* context, void* data, int size) {
    static_cast<BFile*>(context)->Write(data, static_cast<size_t>(size));
}

// Rows stand in the file from the top, as not every reader turns a picture over; the library writes
// them so, but does not say it in the header.
status_t SetRowOrder(bool with_alpha, BFile& destination) {
    const uint8 descriptor = kFromTheTop | (with_alpha ? kAlphaBits : 0);
    destination.Seek(kDescriptorOffset, SEEK_FROM_START);
    destination.Write(&descriptor, 1);
    destination.Seek(0, SEEK_FROM_END);
    return destination.WriteStatus() == B_OK ? B_OK : B_IO_ERROR;
}

// The pixels without their alpha; null when memory is short.
AllocatedArray<uint8> WithoutAlpha(const uint8* rgba, size_t pixels) {
    AllocatedArray<uint8> rgb = AllocateArray<uint8>(pixels * 3);
    if (!rgb) return nullptr;
    for (size_t i = 0; i < pixels; ++i)
        std::copy_n(rgba + i * 4, 3, rgb.get() + i * 3);
    return rgb;
}

}  // namespace

status_t ReadTarga(BFile& source, std::shared_ptr<PixelBudget> budget,
                   std::shared_ptr<BBitmap>* result) {
    TargaLayout layout;
    if (!ReadHeader(source, &layout)) return B_BAD_DATA;
    if (source.Size() < layout.first_pixel + layout.LeastBytes()) return B_BAD_DATA;
    const int64 size = std::min(source.Size(), layout.first_pixel + layout.MostBytes());
    if (size > INT32_MAX) return B_NO_MEMORY;
    auto bitmap =
        std::make_shared<BBitmap>(BRect::OfSize(layout.width, layout.height),
                                  layout.has_alpha ? B_RGBA32 : B_RGB32, std::move(budget));
    if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
    const AllocatedArray<uint8> bytes = AllocateArray<uint8>(static_cast<size_t>(size));
    if (!bytes) return B_NO_MEMORY;
    source.Seek(0, SEEK_FROM_START);
    if (!source.ReadExactly(bytes.get(), static_cast<size_t>(size))) return B_BAD_DATA;
    const status_t status = Decode(bytes.get(), size, layout, bitmap.get());
    if (status == B_OK) *result = std::move(bitmap);
    return status;
}

status_t WriteTarga(const uint8* rgba, int32 width, int32 height, bool with_alpha, bool packed,
                    BFile& destination) {
    const int64 pixels = int64{width} * height;
    if (width < 1 || height < 1 || width > kMaxSide || height > kMaxSide) return B_BAD_VALUE;
    // The library counts bytes in 32 bits.
    if (pixels > INT32_MAX / 4) return B_BAD_VALUE;
    AllocatedArray<uint8> rgb;
    if (!with_alpha) {
        rgb = WithoutAlpha(rgba, static_cast<size_t>(pixels));
        if (!rgb) return B_NO_MEMORY;
    }
    stbi_write_tga_with_rle = packed ? 1 : 0;
    stbi_flip_vertically_on_write(1);
    const void* data = with_alpha ? rgba : rgb.get();
    const int written =
        stbi_write_tga_to_func(WriteBytes, &destination, width, height, with_alpha ? 4 : 3, data);
    if (!written) return B_IO_ERROR;
    return SetRowOrder(with_alpha, destination);
}

}  // namespace kirto
