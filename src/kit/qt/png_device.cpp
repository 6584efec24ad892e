#include "kit/qt/png_device.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

constexpr int64 kSignatureSize = 8;
constexpr int64 kChunkHeaderSize = 8;
constexpr int64 kChunkEndSize = 4;
constexpr uint8 kAncillary = 0x20;

int64 ChunkSize(const uint8* header) {
    return kChunkHeaderSize + kChunkEndSize +
           (int64{header[0]} << 24 | header[1] << 16 | header[2] << 8 | header[3]);
}

// Of what a decoder may skip, only the transparency of colors without alpha changes pixels.
bool IsPartOfPicture(const uint8* header) {
    const uint8* type = header + 4;
    return (type[0] & kAncillary) == 0 || std::memcmp(type, "tRNS", 4) == 0;
}

}  // namespace

PngDevice::PngDevice(BFile& file) : file_(file) {
    FindParts();
    // Unbuffered: the file has its own buffer.
    open(ReadOnly | Unbuffered);
}

void PngDevice::FindParts() {
    const int64 end = file_.Size();
    Keep(0, std::min(kSignatureSize, end));
    uint8 header[kChunkHeaderSize];
    for (int64 offset = kSignatureSize; offset < end;) {
        file_.Seek(offset, SEEK_FROM_START);
        if (!file_.ReadExactly(header, sizeof(header))) return;
        const int64 size = std::min(ChunkSize(header), end - offset);
        if (IsPartOfPicture(header)) Keep(offset, size);
        offset += size;
    }
}

void PngDevice::Keep(int64 offset, int64 size) {
    if (!parts_.empty() && parts_.back().offset + parts_.back().size == offset) {
        parts_.back().size += size;
    } else {
        parts_.push_back({size_, offset, size});
    }
    size_ += size;
}

qint64 PngDevice::readData(char* data, qint64 size) {
    qint64 done = 0;
    while (done < size && pos() + done < size_) {
        const int64 position = pos() + done;
        const auto next =
            std::upper_bound(parts_.begin(), parts_.end(), position,
                             [](int64 wanted, const Part& part) { return wanted < part.position; });
        const Part& part = *(next - 1);
        const int64 skipped = position - part.position;
        file_.Seek(part.offset + skipped, SEEK_FROM_START);
        const int64 count = file_.Read(
            data + done, static_cast<size_t>(std::min<int64>(size - done, part.size - skipped)));
        if (count <= 0) break;
        done += count;
    }
    return done;
}

}  // namespace kirto
