#include "formats/gif/gif_extensions.h"

#include "base/byte_order.h"

namespace kirto {

namespace {

constexpr char kComment[] = "Created by Kirto v1.4 by Morvik on BeOS";

}  // namespace

void AppendLoopBlock(int32 loop_count, ByteWriter* bytes) {
    uint8 loop[19] = {0x21, 0xFF, 0x0B, 'N', 'E', 'T', 'S', 'C', 'A', 'P',
                      'E',  '2',  '.',  '0', 3,   1,   0,   0,   0};
    WriteLittle16(loop + 16, loop_count);
    bytes->Bytes(loop);
}

void AppendCommentBlock(ByteWriter* bytes) {
    const uint8 start[3] = {0x21, 0xFE, LowByte(sizeof(kComment) - 1)};
    bytes->Bytes(start);
    bytes->Text(kComment);
    bytes->U8(0);  // ends the chain of sub-blocks
}

}  // namespace kirto
