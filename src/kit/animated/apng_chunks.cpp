#include "kit/animated/apng_chunks.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <utility>
#include <zlib.h>

namespace kirto {

namespace {

constexpr std::array<uint8, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr size_t kLengthAndType = 8;
constexpr size_t kCheck = 4;
constexpr size_t kHeaderSize = 13;
constexpr size_t kAnimationSize = 8;
constexpr size_t kControlSize = 26;

constexpr uint32 TypeOf(const char (&name)[5]) {
    uint32 type = 0;
    for (int i = 0; i < 4; ++i)
        type = type << 8 | static_cast<uint8>(name[i]);
    return type;
}

constexpr uint32 kIhdr = TypeOf("IHDR");
constexpr uint32 kPlte = TypeOf("PLTE");
constexpr uint32 kTrns = TypeOf("tRNS");
constexpr uint32 kActl = TypeOf("acTL");
constexpr uint32 kFctl = TypeOf("fcTL");
constexpr uint32 kFdat = TypeOf("fdAT");
constexpr uint32 kIdat = TypeOf("IDAT");
constexpr uint32 kIend = TypeOf("IEND");

uint32 ReadBig32(const uint8* bytes) {
    return static_cast<uint32>(bytes[0]) << 24 | static_cast<uint32>(bytes[1]) << 16 |
           static_cast<uint32>(bytes[2]) << 8 | bytes[3];
}

uint32 ReadBig16(const uint8* bytes) {
    return static_cast<uint32>(bytes[0]) << 8 | bytes[1];
}

void WriteBig32(uint8* bytes, uint32 value) {
    for (int i = 0; i < 4; ++i)
        bytes[i] = static_cast<uint8>(value >> (24 - 8 * i));
}

void AppendChunk(std::vector<uint8>* target, uint32 type, std::span<const uint8> content) {
    std::array<uint8, 4> number;
    const size_t start = target->size() + number.size();
    for (const uint32 value : {static_cast<uint32>(content.size()), type}) {
        WriteBig32(number.data(), value);
        target->insert(target->end(), number.begin(), number.end());
    }
    target->insert(target->end(), content.begin(), content.end());
    const auto sum = crc32(0, target->data() + start, static_cast<uInt>(target->size() - start));
    WriteBig32(number.data(), static_cast<uint32>(sum));
    target->insert(target->end(), number.begin(), number.end());
}

// A number of the file that fits int32.
std::optional<int32> Count(const uint8* bytes) {
    const uint32 value = ReadBig32(bytes);
    if (value > static_cast<uint32>(std::numeric_limits<int32>::max())) return std::nullopt;
    return static_cast<int32>(value);
}

}  // namespace

std::optional<ApngChunks::Chunk> ApngChunks::Read() {
    if (pending_) return std::exchange(pending_, std::nullopt);
    if (left_.size() < kLengthAndType + kCheck) return std::nullopt;
    const size_t length = ReadBig32(left_.data());
    if (length > left_.size() - kLengthAndType - kCheck) return std::nullopt;
    const auto sum = crc32(0, left_.data() + 4, static_cast<uInt>(length + 4));
    if (sum != ReadBig32(left_.data() + kLengthAndType + length)) return std::nullopt;
    const Chunk chunk{ReadBig32(left_.data() + 4), left_.subspan(kLengthAndType, length)};
    left_ = left_.subspan(kLengthAndType + length + kCheck);
    return chunk;
}

void ApngChunks::KeepForAll(const Chunk& chunk) {
    if (chunk.type == kPlte || chunk.type == kTrns)
        AppendChunk(&common_chunks_, chunk.type, chunk.content);
}

std::optional<ApngStart> ApngChunks::ReadStart() {
    if (left_.size() < kSignature.size() ||
        !std::equal(kSignature.begin(), kSignature.end(), left_.begin()))
        return std::nullopt;
    left_ = left_.subspan(kSignature.size());
    const std::optional<Chunk> first = Read();
    if (!first || first->type != kIhdr || first->content.size() != kHeaderSize) return std::nullopt;
    header_.assign(first->content.begin(), first->content.end());
    const auto width = Count(header_.data());
    const auto height = Count(&header_[4]);
    if (!width || !height || *width == 0 || *height == 0) return std::nullopt;
    bool animated = false;
    while (std::optional<Chunk> chunk = Read()) {
        if (chunk->type == kIdat || chunk->type == kFctl || chunk->type == kIend) {
            pending_ = chunk;
            break;
        }
        KeepForAll(*chunk);
        if (chunk->type != kActl || chunk->content.size() != kAnimationSize) continue;
        const auto frames = Count(chunk->content.data());
        const auto plays = Count(&chunk->content[4]);
        if (!frames || !plays || *frames == 0) return std::nullopt;
        start_ = {*width, *height, *frames, *plays};
        animated = true;
    }
    if (!animated) return std::nullopt;
    return start_;
}

std::optional<ApngControl> ApngChunks::NextImage() {
    std::optional<ApngControl> control;
    bool has_data = false;
    while (std::optional<Chunk> chunk = Read()) {
        const bool ends_image = chunk->type == kFctl || chunk->type == kIend;
        if (ends_image && has_data) {
            pending_ = chunk;
            AppendChunk(&image_, kIend, {});
            return control;
        }
        if (chunk->type == kIend) {
            at_end_ = !control;
            return std::nullopt;
        }
        if (chunk->type == kFctl) {
            if (control) return std::nullopt;
            control = TakeControl(chunk->content);
            if (!control) return std::nullopt;
            BeginImage(*control);
        } else if (chunk->type == kIdat && control) {
            // Without a frame's control in front of it, the image is for those who show no others.
            AppendData(chunk->content, !has_data);
            has_data = true;
        } else if (chunk->type == kFdat) {
            if (!control || !TakeSequence(chunk->content)) return std::nullopt;
            AppendData(chunk->content.subspan(4), !has_data);
            has_data = true;
        } else {
            KeepForAll(*chunk);
        }
    }
    return std::nullopt;
}

bool ApngChunks::TakeSequence(std::span<const uint8> content) {
    return content.size() >= 4 && ReadBig32(content.data()) == next_sequence_++;
}

std::optional<ApngControl> ApngChunks::TakeControl(std::span<const uint8> content) {
    if (content.size() != kControlSize || !TakeSequence(content)) return std::nullopt;
    const auto width = Count(&content[4]);
    const auto height = Count(&content[8]);
    const auto x = Count(&content[12]);
    const auto y = Count(&content[16]);
    const bool inside = width && height && x && y && *width > 0 && *height > 0 &&
                        *x <= start_.width && *y <= start_.height && *width <= start_.width - *x &&
                        *height <= start_.height - *y;
    const uint8 dispose = content[24];
    const uint8 blend = content[25];
    if (!inside || dispose > 2 || blend > 1) return std::nullopt;
    const uint32 numerator = ReadBig16(&content[20]);
    const uint32 denominator = ReadBig16(&content[22]);
    const double seconds = static_cast<double>(numerator) / (denominator == 0 ? 100 : denominator);
    return ApngControl{*width,    *height,          *x,
                       *y,        seconds * 1000.0, static_cast<ApngControl::Dispose>(dispose),
                       blend == 1};
}

void ApngChunks::BeginImage(const ApngControl& control) {
    image_.assign(kSignature.begin(), kSignature.end());
    std::vector<uint8> header = header_;
    WriteBig32(header.data(), static_cast<uint32>(control.width));
    WriteBig32(&header[4], static_cast<uint32>(control.height));
    AppendChunk(&image_, kIhdr, header);
}

void ApngChunks::AppendData(std::span<const uint8> content, bool first) {
    if (first) image_.insert(image_.end(), common_chunks_.begin(), common_chunks_.end());
    AppendChunk(&image_, kIdat, content);
}

}  // namespace kirto
