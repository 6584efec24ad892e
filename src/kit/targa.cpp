#include "kit/targa.h"

#include <algorithm>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_NO_HDR
#define STBI_NO_LINEAR
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

#include "base/allocation.h"
#include "base/byte_order.h"

namespace kirto {

namespace {

constexpr int64 kHeaderBytes = 18;
constexpr uint8 kColor = 2;
constexpr uint8 kPackedColor = 10;
constexpr uint8 kAlphaBits = 8;
constexpr uint8 kFromTheTop = 0x20;
constexpr int32 kMaxSide = 65535;
constexpr int32 kMaxPacket = 128;  // pixels
constexpr int32 kRunPacket = 0x80;

// What a header says about the bytes after it.
struct TargaLayout {
    int32 width = 0;
    int32 height = 0;
    bool has_alpha = false;
    bool packed = false;
    int64 first_pixel = 0;  // offset of the pixels: after the comment and the color table
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

// The two forms of a row's pixels in the file: blue, green, red and, with a fourth channel, alpha.
// Each returns the end of what it wrote.
uint8* PutPixels(const uint8* rgba, int32 count, int32 channels, uint8* out) {
    for (int32 i = 0; i < count; ++i, rgba += 4) {
        *out++ = rgba[2];
        *out++ = rgba[1];
        *out++ = rgba[0];
        if (channels == 4) *out++ = rgba[3];
    }
    return out;
}

// How many pixels from the first on are alike, at most count.
int32 RunLength(const uint8* rgba, int32 count, int32 channels) {
    int32 length = 1;
    while (length < count && std::equal(rgba, rgba + channels, rgba + int64{length} * 4))
        ++length;
    return length;
}

uint8* PutPackets(const uint8* rgba, int32 width, int32 channels, uint8* out) {
    while (width > 0) {
        const int32 most = std::min(width, kMaxPacket);
        int32 count = RunLength(rgba, most, channels);
        if (count > 1) {
            *out++ = static_cast<uint8>(kRunPacket | (count - 1));
            out = PutPixels(rgba, 1, channels, out);
        } else {
            while (count < most &&
                   RunLength(rgba + int64{count} * 4, std::min(2, width - count), channels) == 1)
                ++count;
            *out++ = static_cast<uint8>(count - 1);
            out = PutPixels(rgba, count, channels, out);
        }
        rgba += int64{count} * 4;
        width -= count;
    }
    return out;
}

// Rows stand in the file from the top, as not every reader turns a picture over.
void PutHeader(int32 width, int32 height, bool with_alpha, bool packed, uint8* header) {
    std::fill_n(header, kHeaderBytes, uint8{0});
    header[2] = packed ? kPackedColor : kColor;
    WriteLittle16(header + 12, width);
    WriteLittle16(header + 14, height);
    header[16] = with_alpha ? 32 : 24;
    header[17] = kFromTheTop | (with_alpha ? kAlphaBits : 0);
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
    if (pixels > INT32_MAX / 4) return B_BAD_VALUE;
    const int32 channels = with_alpha ? 4 : 3;
    const int32 packets = (width + kMaxPacket - 1) / kMaxPacket;
    const auto row = AllocateArray<uint8>(static_cast<size_t>(int64{width} * channels + packets));
    if (!row) return B_NO_MEMORY;
    uint8 header[kHeaderBytes];
    PutHeader(width, height, with_alpha, packed, header);
    destination.Write(header, sizeof(header));
    for (int32 y = 0; y < height && destination.WriteStatus() == B_OK; ++y) {
        const uint8* pixels_of_row = rgba + int64{y} * width * 4;
        const uint8* end = packed ? PutPackets(pixels_of_row, width, channels, row.get())
                                  : PutPixels(pixels_of_row, width, channels, row.get());
        destination.Write(row.get(), static_cast<size_t>(end - row.get()));
    }
    return destination.WriteStatus() == B_OK ? B_OK : B_IO_ERROR;
}

}  // namespace kirto
