#include "formats/gif/gif_reader.h"

#include <utility>

#include "base/debug_line.h"

namespace kirto {

std::optional<GifPiece> GifReader::Next() {
    if (over_) return std::nullopt;
    GifPiece piece;
    while (ReadBlock(&piece) && piece.blocks.size() < kMostBlocks) {
    }
    over_ = piece.end != GifPiece::End::kImage && piece.end != GifPiece::End::kMore;
    return piece;
}

bool GifReader::ReadBlock(GifPiece* piece) {
    GifControl control;
    int32 loop_count = 0;
    DebugLineCapture lines;
    const GifParser::Block kind = parser_.ReadBlock(&control, &loop_count);
    GifPiece::Block block;
    block.lines = lines.Take();
    if (kind == GifParser::Block::kControl) block.control = control;
    if (kind == GifParser::Block::kLoop) block.loop_count = loop_count;
    if (block.control || block.loop_count || !block.lines.empty())
        piece->blocks.push_back(std::move(block));
    switch (kind) {
        case GifParser::Block::kControl:
        case GifParser::Block::kLoop:
        case GifParser::Block::kOther:
            return true;
        case GifParser::Block::kImageStart:
            piece->end = parser_.ReadImage(&piece->image) ? GifPiece::End::kImage
                                                          : GifPiece::End::kBrokenImage;
            return false;
        case GifParser::Block::kTrailer:
            piece->end = GifPiece::End::kTrailer;
            return false;
        case GifParser::Block::kEnd:
            piece->end = GifPiece::End::kNoTrailer;
            return false;
        case GifParser::Block::kBroken:
            break;
    }
    piece->end = GifPiece::End::kBroken;
    return false;
}

}  // namespace kirto
