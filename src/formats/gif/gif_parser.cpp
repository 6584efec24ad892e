#include "formats/gif/gif_parser.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "base/byte_order.h"
#include "base/debug_line.h"

namespace kirto {

namespace {

constexpr uint8 kExtensionIntroducer = '!';
constexpr uint8 kImageSeparator = ',';
constexpr uint8 kTrailer = ';';
constexpr uint8 kStrayTerminator = 0;

constexpr uint8 kGraphicControlLabel = 0xF9;
constexpr uint8 kCommentLabel = 0xFE;
constexpr uint8 kApplicationLabel = 0xFF;

GifParser::Block OtherOrBroken(bool complete) {
    return complete ? GifParser::Block::kOther : GifParser::Block::kBroken;
}

}  // namespace

bool GifParser::ReadGifHeader(GifScreen* screen) {
    uint8 header[13];
    if (!input_.Read(header, sizeof(header))) return false;
    screen->width = ReadLittle16(header + 6);
    screen->height = ReadLittle16(header + 8);
    screen->background_index = header[11];
    ReadColorTable(header[10], &screen->table);
    return true;
}

GifParser::Block GifParser::ReadBlock(GifControl* control, int32* loop_count) {
    uint8 introducer = 0;
    if (!input_.Read(&introducer, 1)) return Block::kEnd;
    switch (introducer) {
        case kImageSeparator:
            return Block::kImageStart;
        case kExtensionIntroducer:
            return ReadExtension(control, loop_count);
        case kTrailer:
            return Block::kTrailer;
        case kStrayTerminator:
            return Block::kOther;
        default:
            if (rules_ == GifRules::kBrowsers) return Block::kBroken;
            return OtherOrBroken(ReadGifUnknownBlock(introducer));
    }
}

GifParser::Block GifParser::ReadExtension(GifControl* control, int32* loop_count) {
    uint8 label = 0;
    if (!input_.Read(&label, 1)) return Block::kBroken;
    switch (label) {
        case kGraphicControlLabel:
            return ReadGifControlBlock(control) ? Block::kControl : Block::kBroken;
        case kCommentLabel:
            return OtherOrBroken(ReadGifCommentBlock());
        case kApplicationLabel:
            return rules_ == GifRules::kDefined ? ReadGifLoopBlock(loop_count)
                                                : ReadPlayersLoopBlock(loop_count);
        default:
            return OtherOrBroken(ReadGifUnknownBlock(label));
    }
}

GifParser::Block GifParser::ReadGifLoopBlock(int32* loop_count) {
    static constexpr char kIdentifier[12] = "NETSCAPE2.0";
    uint8 size = 0;
    std::array<uint8, 256> block{};
    if (!input_.Read(&size, 1) || !input_.Read(block.data(), size)) return Block::kBroken;
    if (std::memcmp(block.data(), kIdentifier, sizeof(kIdentifier)) != 0) {
        return OtherOrBroken(SkipSubBlocks());
    }
    // One read takes the sub-block and the terminator after it.
    block.fill(0);
    if (!input_.Read(&size, 1)) return Block::kBroken;
    if (!input_.Read(block.data(), static_cast<size_t>(size) + 1)) return Block::kBroken;
    // What the sub-block is too short for counts as 0; the terminator is no part of the count.
    std::fill(block.begin() + size, block.end(), uint8{0});
    *loop_count = ReadLittle16(block.data() + 1);
    return Block::kLoop;
}

// Players know the block by two identifiers, and the loop count by its own number in front of it: a
// sub-block of another number asks for something else.
GifParser::Block GifParser::ReadPlayersLoopBlock(int32* loop_count) {
    static constexpr uint8 kLoopCount = 1;
    std::array<uint8, 255> block;
    uint8 size = 0;
    if (!input_.Read(&size, 1) || !input_.Read(block.data(), size)) return Block::kBroken;
    const std::string identifier(block.begin(), block.begin() + size);
    const bool loops = identifier == "NETSCAPE2.0" || identifier == "ANIMEXTS1.0";
    bool found = false;
    while (input_.Read(&size, 1) && input_.Read(block.data(), size)) {
        if (size == 0) return found ? Block::kLoop : Block::kOther;
        if (!loops || size != 3 || block[0] != kLoopCount) continue;
        *loop_count = ReadLittle16(block.data() + 1);
        found = true;
    }
    return Block::kBroken;
}

bool GifParser::ReadGifControlBlock(GifControl* control) {
    uint8 block[6];
    if (!input_.Read(block, sizeof(block))) return false;
    control->disposal = (block[1] >> 2) & 7;
    control->delay = ReadLittle16(block + 2);
    control->transparent_index = (block[1] & 1) != 0 ? block[4] : -1;
    return true;
}

bool GifParser::ReadGifCommentBlock() {
    DebugLine("GifLoad::ReadGifCommentBlock() - Found:");
    // A line break goes with what follows it: a text that ends in one ends the debug line, and the
    // comment's lines must not pass for the program's.
    std::string text = "\n";
    uint8 size = 0;
    char block[256] = {};
    while (input_.Read(&size, 1) && input_.Read(block, size)) {
        block[size] = 0;
        if (size == 0) {
            DebugLine("%s\n", text.c_str());
            return true;
        }
        text += block;
        const bool ends_line = text.ends_with('\n');
        if (ends_line) text.pop_back();
        DebugLine("%s", text.c_str());
        text = ends_line ? "\n" : "";
    }
    DebugLine("%s", text.c_str());
    return false;
}

bool GifParser::ReadGifUnknownBlock(uint8 label) {
    DebugLine("GifLoad::ReadGifUnknownBlock() - Found: %d\n", label);
    return SkipSubBlocks();
}

bool GifParser::SkipSubBlocks() {
    uint8 size = 0;
    do {
        if (!input_.Read(&size, 1)) return false;
        input_.Skip(size);
    } while (size != 0);
    return true;
}

bool GifParser::ReadImage(GifImage* image) {
    uint8 header[9];
    if (!input_.Read(header, sizeof(header))) return false;
    image->left = ReadLittle16(header);
    image->top = ReadLittle16(header + 2);
    image->width = ReadLittle16(header + 4);
    image->height = ReadLittle16(header + 6);
    image->interlaced = (header[8] & 0x40) != 0;
    ReadColorTable(header[8], &image->table);
    image->min_code_size = 0;
    input_.Read(&image->min_code_size, 1);
    image->data.bytes.reserve(expected_data_);
    image->data.Read(input_, max_data_, rules_ == GifRules::kBrowsers);
    expected_data_ = image->data.bytes.size() + image->data.bytes.size() / 8;
    return true;
}

void GifParser::ReadColorTable(uint8 flags, GifColorTable* table) {
    table->bits = 0;
    table->complete = true;
    if ((flags & 0x80) == 0) return;
    table->bits = (flags & 7) + 1;
    uint8 bytes[256 * 3];
    const size_t count = size_t{1} << table->bits;
    table->complete = input_.Read(bytes, count * 3);
    if (!table->complete) return;
    for (size_t i = 0; i < count; ++i)
        table->colors[i] = {bytes[i * 3], bytes[i * 3 + 1], bytes[i * 3 + 2], 255};
}

}  // namespace kirto
