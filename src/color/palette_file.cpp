// The part of Palette that reads color tables out of GIF and FLI files.
#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "base/byte_order.h"
#include "color/fli_colors.h"
#include "color/palette.h"

namespace {

constexpr size_t kGifHeaderSize = 13;
constexpr size_t kGifPackedOffset = 10;
constexpr uint8 kGifHasTable = 0x80;
constexpr uint8 kGifExtension = 0x21;
constexpr uint8 kGifImage = 0x2C;

constexpr size_t kFliHeaderSize = 128;
constexpr size_t kFliFrameHeaderSize = 16;
constexpr size_t kFliChunkCountOffset = 6;
constexpr size_t kFliChunkHeaderSize = 6;
constexpr uint16 kFliColor64 = 11;
// More than a color chunk can use: every packet fills at least one entry, so after at most 256
// packets and 511 triples the index has passed the last entry.
constexpr size_t kFliColorBytes = 2 + 256 * 2 + 511 * 3;

// Goes past the extensions in front of a GIF's first image and into its descriptor, up to the
// packed byte. An extension is taken to hold exactly one data sub-block: with more of them the
// place is lost.
bool ReadFirstImagePacked(BFile& file, uint8* packed) {
    std::array<uint8, 3> block{};
    if (!file.ReadExactly(block.data(), block.size())) return false;
    while (block[0] == kGifExtension) {
        file.Seek(block[2] + 1, SEEK_FROM_CURRENT);
        if (!file.ReadExactly(block.data(), block.size())) return false;
    }
    if (block[0] != kGifImage) return false;
    file.Seek(6, SEEK_FROM_CURRENT);
    return file.ReadExactly(packed, 1);
}

// Reads a color chunk of so many bytes and carries it out; false if the file has fewer.
bool ReadFliColorChunk(BFile& file, int32 size, kirto::ColorTable& colors) {
    if (size < 0 || size > file.Size() - file.Position()) return false;
    std::array<uint8, kFliColorBytes> bytes{};
    const size_t used = std::min(static_cast<size_t>(size), bytes.size());
    if (!file.ReadExactly(bytes.data(), used)) return false;
    // Deliberately not widened from the 0..63 of this chunk type to 0..255: the same file must go
    // on giving the same palette.
    kirto::ReadFliColors(std::span(bytes).first(used), 1, &colors);
    return true;
}

}  // namespace

bool Palette::Set(const char* path) {
    mode = kirto::kPaletteFromFile;
    BFile file(path, B_READ_ONLY);
    const std::string_view name(path);
    const auto contains = [name](const char* part) {
        return name.find(part) != std::string_view::npos;
    };
    bool loaded = false;
    if (contains("gif") || contains("GIF")) {
        loaded = StripGif(&file);
    } else if (contains("fli") || contains("FLI")) {
        loaded = StripFli(&file);
    }
    if (!loaded) mode = kirto::kPaletteAwaitingFile;
    return loaded;
}

bool Palette::StripGif(BFile* file) {
    std::array<uint8, kGifHeaderSize> header{};
    if (!file->ReadExactly(header.data(), header.size())) return false;
    uint8 packed = header[kGifPackedOffset];
    // Without a global table the first image is taken to have one of its own.
    if (!(packed & kGifHasTable) && !ReadFirstImagePacked(*file, &packed)) return false;
    bits = (packed & 7) + 1;
    size = 1 << bits;
    return ReadTriples(file, size);
}

bool Palette::ReadTriples(BFile* file, int32 count) {
    for (size_t i = 0; i < static_cast<size_t>(count); ++i) {
        std::array<uint8, 3> triple{};
        if (!file->ReadExactly(triple.data(), triple.size())) return false;
        colors[i] = {triple[0], triple[1], triple[2], 255};
    }
    return true;
}

bool Palette::StripFli(BFile* file) {
    std::array<uint8, kFliHeaderSize> header{};
    std::array<uint8, kFliFrameHeaderSize> frame{};
    if (!file->ReadExactly(header.data(), header.size())) return false;
    if (!file->ReadExactly(frame.data(), frame.size())) return false;
    colors.fill({0, 0, 0, 255});
    size = 256;
    bits = 8;
    for (int32 chunks = kirto::ReadLittle16(&frame[kFliChunkCountOffset]); chunks > 0; --chunks) {
        std::array<uint8, kFliChunkHeaderSize> chunk{};
        if (!file->ReadExactly(chunk.data(), chunk.size())) return false;
        if (kirto::ReadLittle16(&chunk[4]) == kFliColor64) {
            // The chunk's size counts its header, so this also asks for the 6 bytes after it.
            return ReadFliColorChunk(*file, static_cast<int32>(kirto::ReadLittle32(chunk.data())),
                                     colors);
        }
        // Deliberately by the palette's size and not by the chunk's: it decides which files give a
        // palette.
        file->Seek(size, SEEK_FROM_CURRENT);
    }
    return false;
}
