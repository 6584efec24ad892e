#include "formats/recovery/recovery_file.h"

namespace kirto {

bool IsRecoverable(const Palette& palette) {
    return palette.size >= 0 && palette.size <= 256 && palette.bits >= 1 && palette.bits <= 8;
}

bool IsRecoverable(const Frame& frame) {
    // Width and Height are 0 without pixels.
    return frame.bitmap && frame.width >= 1 && frame.width <= frame.bitmap->Width() &&
           frame.height >= 1 && frame.height <= frame.bitmap->Height() &&
           frame.name.size() <= kMaxRecoveryName;
}

}  // namespace kirto
