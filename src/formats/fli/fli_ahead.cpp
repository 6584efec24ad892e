#include "formats/fli/fli_ahead.h"

#include "base/debug_line.h"

namespace kirto {

using Record = FliDecoder::Record;

namespace {

// Handing one to another thread takes longer than reading many.
constexpr int32 kSkippedTogether = 64;

}  // namespace

std::optional<FliPiece> FliAhead::Next() {
    if (index_ >= count_) return std::nullopt;
    FliPiece piece;
    piece.index = index_;
    // Only the document's first frame defines the global palette.
    const FliDecoder::Place place{previous_, position_ == 0};
    DebugLineCapture lines;
    // To players what shows nothing is no step; that many of it are one here.
    for (int32 left = rules_ == FliRules::kPlayers ? kSkippedTogether : 1; left > 0; --left) {
        piece.kind = decoder_.ReadRecord(index_, place, &piece.frame, &piece.palette);
        if (piece.kind != Record::kSkipped) break;
    }
    piece.lines = lines.Take();
    if (place.defines_global) piece.global = decoder_.GlobalPalette();
    piece.out_of_memory = decoder_.OutOfMemory();
    piece.cause = decoder_.Cause();
    Pass(piece);
    return piece;
}

bool FliAhead::RepeatsPrevious(const Frame& frame) const {
    return previous_ && previous_->bitmap && frame.bitmap->Repeats(*previous_->bitmap) &&
           frame.local_palette == previous_->local_palette;
}

void FliAhead::Pass(FliPiece& piece) {
    if (piece.kind == Record::kFrame) {
        piece.repeats = RepeatsPrevious(piece.frame);
        ++position_;
        previous_ = std::make_shared<const Frame>(piece.frame);
    }
    if (piece.kind == Record::kFrame || piece.kind == Record::kLonger) ++frames_;
    // By the defined rules every record counts, to players only those that show something; what
    // comes behind the last frame leads back to the first.
    index_ = rules_ == FliRules::kPlayers ? frames_ : index_ + 1;
    if (piece.kind == Record::kBroken) index_ = count_;
}

}  // namespace kirto
