#include "formats/gif/gif_ahead.h"

#include <utility>

namespace kirto {

namespace {

// Larger images are decoded when it is their turn, one at a time.
constexpr uint64 kMostAhead = uint64{16} << 20;
// A batch ends with the piece that makes it this heavy, or so many.
constexpr uint64 kEnough = uint64{1} << 17;
constexpr size_t kMostPieces = 32;

uint64 PixelsOf(const GifImage& image) {
    return static_cast<uint64>(image.width) * static_cast<uint64>(image.height);
}

bool HaveSameSize(const GifImage& first, const GifImage& second) {
    return first.width == second.width && first.height == second.height;
}

// What the piece takes in memory once it is decoded, roughly, in bytes.
uint64 WeightOf(const GifPiece& piece) {
    uint64 weight = PixelsOf(piece.image) + piece.image.data.bytes.size();
    for (const GifPiece::Block& block : piece.blocks)
        weight += sizeof(block) + block.lines.size();
    return weight;
}

}  // namespace

std::optional<GifAhead::Batch> GifAhead::Next() {
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
    Batch batch;
    uint64 weight = 0;
    do {
        const size_t before = batch.size();
        AddNext(&batch);
        if (batch.size() == before) break;
        weight += WeightOf(batch.back());
    } while (options_.together && weight < kEnough && batch.size() < kMostPieces);
    if (batch.empty()) return std::nullopt;
    return batch;
}

// What is thrown has its turn after the pieces before it.
void GifAhead::AddNext(Batch* batch) {
    try {
        std::optional<GifPiece> piece = reader_.Next();
        if (!piece) return;
        for (const GifPiece::Block& block : piece->blocks)
            transparent_ |= block.control && block.control->transparent_index >= 0;
        piece->opaque = !transparent_;
        batch->push_back(std::move(*piece));
    } catch (...) {
        if (batch->empty()) throw;
        thrown_ = std::current_exception();
    }
}

std::optional<GifAhead::Decoded> GifAhead::Decode(const Batch& batch) {
    Decoded decoded(batch.size());
    for (size_t i = 0; i < batch.size(); ++i) {
        const bool alike = i > 0 && HaveSameSize(batch[i - 1].image, batch[i].image);
        if (!Decode(batch[i], &decoded[i], alike ? &decoded[i - 1] : nullptr)) return std::nullopt;
    }
    return decoded;
}

// before: of an image of the same size, or null. False when memory is short.
bool GifAhead::Decode(const GifPiece& piece, GifIndices* indices, const GifIndices* before) {
    const GifImage& image = piece.image;
    if (piece.end != GifPiece::End::kImage || !CanDecode(image)) return true;
    const std::optional<int32> code_size = composer_.CodeSizeOf(image);
    if (!code_size) return true;
    *indices = Spare();
    if (!indices->Reserve(image)) return false;
    indices->Decode(image, *code_size, work_, 0);
    // A single thread counts what it does not find in the frame before.
    if (options_.together && CoversFrame(piece)) indices->Count(image, before);
    return true;
}

bool GifAhead::CanDecode(const GifImage& image) {
    const uint64 size = PixelsOf(image);
    return size > 0 && size <= kMostAhead && !image.data.too_large && image.table.complete;
}

// Whether the frame will have the image's pixels only.
bool GifAhead::CoversFrame(const GifPiece& piece) const {
    if (!options_.full_frame) return true;
    const GifImage& image = piece.image;
    return piece.opaque && image.left == 0 && image.top == 0 && image.width == screen_.width &&
           image.height == screen_.height;
}

void GifAhead::TakeBack(GifIndices indices) {
    if (indices.room == 0) return;
    const std::lock_guard lock(mutex_);
    spare_.push_back(std::move(indices));
}

GifIndices GifAhead::Spare() {
    const std::lock_guard lock(mutex_);
    if (spare_.empty()) return {};
    GifIndices indices = std::move(spare_.back());
    spare_.pop_back();
    return indices;
}

}  // namespace kirto
