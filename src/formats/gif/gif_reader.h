#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/types.h"
#include "formats/gif/gif_parser.h"

namespace kirto {

// The blocks of a GIF file up to its next image, or up to its end.
struct GifPiece {
    // A block in front of the image: one of the three.
    struct Block {
        std::optional<GifControl> control;
        std::optional<int32> loop_count;
        std::string lines;  // that reading it would have printed
    };
    enum class End {
        kImage,        // the image
        kBrokenImage,  // the file ended within its header
        kMore,         // more such blocks: there are very many
        kTrailer,
        kNoTrailer,  // the file ended instead
        kBroken      // the file ended within a block
    };

    std::vector<Block> blocks;
    End end = End::kMore;
    GifImage image;       // where there is one
    bool opaque = false;  // no index can be transparent in it
};

// Reads a GIF file ahead of the thread that shows what is in it: nothing is printed or said.
class GifReader {
  public:
    // parser: behind the file's header; outlives this.
    explicit GifReader(GifParser& parser) : parser_(parser) {}

    // The next piece; nothing after the last one.
    std::optional<GifPiece> Next();

  private:
    static constexpr size_t kMostBlocks = 256;

    // False at the piece's end.
    bool ReadBlock(GifPiece* piece);

    GifParser& parser_;
    bool over_ = false;
};

}  // namespace kirto
