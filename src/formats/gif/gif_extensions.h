// The extension blocks in front of a GIF file's images.
#pragma once

#include "base/byte_writer.h"
#include "base/types.h"

namespace kirto {

// How often the animation is played: the low 16 bits of the number, 0 for ever.
void AppendLoopBlock(int32 loop_count, ByteWriter* bytes);
// The program's own comment.
void AppendCommentBlock(ByteWriter* bytes);

}  // namespace kirto
