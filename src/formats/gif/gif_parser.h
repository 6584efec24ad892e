#pragma once

#include <array>

#include "base/types.h"
#include "formats/gif/gif_image_data.h"
#include "kit/watched_input.h"

namespace kirto {

// A color table as it stands in the file.
struct GifColorTable {
    int32 bits = 0;                       // there are 1 << bits colors; 0: no table
    bool complete = true;                 // false: the file ended within it, the colors are not set
    std::array<rgb_color, 256> colors{};  // opaque
};

// The logical screen: what all images share.
struct GifScreen {
    int32 width = 0;  // pixels
    int32 height = 0;
    int32 background_index = 0;
    GifColorTable table;
};

// What a graphic control block says of the image after it.
struct GifControl {
    int32 disposal = 0;            // 0 to 7
    int32 delay = 0;               // hundredths of a second
    int32 transparent_index = -1;  // -1: none
};

// An image as it stands in the file, not decoded.
struct GifImage {
    int32 left = 0;  // pixels
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
    bool interlaced = false;
    GifColorTable table;
    uint8 min_code_size = 0;  // 0 also where the file ended before it
    GifImageData data;
};

// How files are read where they are odd.
enum class GifRules {
    kDefined,  // as this program does by default
    kBrowsers  // as web browsers do
};

// Reads a GIF file (87a or 89a) block by block: bytes in, values out, nothing is decoded. The
// layout is described in docs/formats/gif.md.
class GifParser {
  public:
    enum class Block {
        kControl,
        kLoop,
        kImageStart,  // an image follows: ReadImage() reads it
        kOther,       // nothing that changes the animation
        kTrailer,
        kEnd,    // the file ended where a block was to begin
        kBroken  // the file ended within the block, or browsers read no further than this
    };

    // input: at the file's start; outlives this. max_data: bytes that one image's codes may take.
    GifParser(WatchedInput& input, uint64 max_data, GifRules rules)
        : input_(input), max_data_(max_data), rules_(rules) {}

    // The file's first block. False when it is not complete, but for the colors of its table.
    bool ReadGifHeader(GifScreen* screen);
    // The next one. control, loop_count: set where that is the block.
    Block ReadBlock(GifControl* control, int32* loop_count);
    // False when the file ended before the size was known; nothing is known then.
    bool ReadImage(GifImage* image);

  private:
    Block ReadExtension(GifControl* control, int32* loop_count);
    Block ReadGifLoopBlock(int32* loop_count);
    Block ReadPlayersLoopBlock(int32* loop_count);
    bool ReadGifControlBlock(GifControl* control);
    bool ReadGifCommentBlock();
    bool ReadGifUnknownBlock(uint8 label);
    void ReadColorTable(uint8 flags, GifColorTable* table);
    bool SkipSubBlocks();

    WatchedInput& input_;
    const uint64 max_data_;
    const GifRules rules_;
    size_t expected_data_ = 0;  // bytes that the next image probably has, at most
};

}  // namespace kirto
