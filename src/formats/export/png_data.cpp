#include "formats/export/png_data.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <new>
#include <zlib.h>

namespace kirto {

namespace {

constexpr int kFilters = 5;
constexpr int kPaeth = 4;

// The one of the three that is nearest to what they say.
int32 PaethOf(int32 left, int32 above, int32 corner) {
    const int32 guess = left + above - corner;
    const int32 to_left = std::abs(guess - left);
    const int32 to_above = std::abs(guess - above);
    const int32 to_corner = std::abs(guess - corner);
    if (to_left <= to_above && to_left <= to_corner) return left;
    return to_above <= to_corner ? above : corner;
}

int32 Predict(int filter, int32 left, int32 above, int32 corner) {
    switch (filter) {
        case 1:
            return left;
        case 2:
            return above;
        case 3:
            return (left + above) / 2;
        case kPaeth:
            return PaethOf(left, above, corner);
        default:
            return 0;
    }
}

// above: the row before, or null. Returns how far the bytes are from 0.
uint64 FilterRow(int filter, std::span<const uint8> row, const uint8* above, size_t pixel_bytes,
                 uint8* target) {
    uint64 sum = 0;
    for (size_t i = 0; i < row.size(); ++i) {
        const bool first = i < pixel_bytes;
        const int32 left = first ? 0 : row[i - pixel_bytes];
        const int32 up = above ? above[i] : 0;
        const int32 corner = first || !above ? 0 : above[i - pixel_bytes];
        target[i] = static_cast<uint8>(row[i] - Predict(filter, left, up, corner));
        sum += static_cast<uint64>(std::abs(static_cast<int8_t>(target[i])));
    }
    return sum;
}

std::vector<uint8> Filtered(std::span<const uint8> rows, size_t row_bytes, size_t pixel_bytes,
                            bool chooses, const Work& work) {
    std::vector<uint8> filtered;
    filtered.reserve(rows.size() + rows.size() / row_bytes);
    std::vector<uint8> tried(row_bytes);
    std::vector<uint8> best(row_bytes);
    const uint8* above = nullptr;
    for (size_t start = 0; start < rows.size() && !work.StopRequested(); start += row_bytes) {
        const std::span<const uint8> row = rows.subspan(start, row_bytes);
        uint64 least = std::numeric_limits<uint64>::max();
        uint8 chosen = 0;
        for (int filter = 0; filter < (chooses ? kFilters : 1); ++filter) {
            const uint64 sum = FilterRow(filter, row, above, pixel_bytes, tried.data());
            if (sum >= least) continue;
            least = sum;
            chosen = static_cast<uint8>(filter);
            best.swap(tried);
        }
        filtered.push_back(chosen);
        filtered.insert(filtered.end(), best.begin(), best.end());
        above = row.data();
    }
    return filtered;
}

std::vector<uint8> Deflate(std::span<const uint8> bytes, const Work& work) {
    constexpr int kMostMemory = 9;
    constexpr int kWindowBits = 15;
    z_stream stream{};
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, kWindowBits, kMostMemory,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    std::vector<uint8> packed;
    constexpr size_t kPiece = size_t{1} << 16;
    std::vector<uint8> piece(kPiece);
    int result = Z_OK;
    while (result == Z_OK && !work.StopRequested()) {
        const size_t more = std::min<size_t>(bytes.size(), size_t{1} << 30);
        stream.next_in = const_cast<Bytef*>(bytes.data());
        stream.avail_in = static_cast<uInt>(more);
        stream.next_out = piece.data();
        stream.avail_out = static_cast<uInt>(piece.size());
        result = deflate(&stream, more == bytes.size() ? Z_FINISH : Z_NO_FLUSH);
        bytes = bytes.subspan(more - stream.avail_in);
        packed.insert(packed.end(), piece.data(), piece.data() + piece.size() - stream.avail_out);
    }
    deflateEnd(&stream);
    if (result != Z_STREAM_END && !work.StopRequested()) throw std::bad_alloc();
    return packed;
}

}  // namespace

std::vector<uint8> CompressPngRows(std::span<const uint8> rows, size_t row_bytes,
                                   size_t pixel_bytes, const Work& work) {
    std::vector<uint8> plain = Deflate(Filtered(rows, row_bytes, pixel_bytes, false, work), work);
    // Neighboring indices say nothing of each other.
    if (pixel_bytes == 1) return plain;
    std::vector<uint8> chosen = Deflate(Filtered(rows, row_bytes, pixel_bytes, true, work), work);
    return chosen.size() < plain.size() ? chosen : plain;
}

void AppendBig32(uint32 value, std::vector<uint8>* bytes) {
    for (const int shift : {24, 16, 8, 0})
        bytes->push_back(static_cast<uint8>(value >> shift));
}

void AppendBig16(uint32 value, std::vector<uint8>* bytes) {
    for (const int shift : {8, 0})
        bytes->push_back(static_cast<uint8>(value >> shift));
}

void AppendPngChunk(std::string_view type, std::span<const uint8> content,
                    std::vector<uint8>* file) {
    AppendBig32(static_cast<uint32>(content.size()), file);
    const size_t start = file->size();
    file->insert(file->end(), type.begin(), type.end());
    file->insert(file->end(), content.begin(), content.end());
    const uLong sum = crc32_z(0, file->data() + start, file->size() - start);
    AppendBig32(static_cast<uint32>(sum), file);
}

}  // namespace kirto
