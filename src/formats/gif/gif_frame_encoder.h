#pragma once

#include "animation/animation.h"
#include "base/byte_writer.h"
#include "base/shared_progress.h"
#include "base/types.h"
#include "formats/gif/pixel_mapper.h"

namespace kirto {

// How an animation is written, besides what it says itself.
struct GifSaveOptions {
    bool interlaced = false;
    bool comment = false;           // with a comment of the program's own
    bool pause_in_seconds = false;  // the unit of the animation's pauses; else hundredths
    int32 disposal = 0;             // of each frame, 0 to 3
};

// Encodes the frames of an animation, each by itself: the bytes of a frame are the same whichever
// were encoded before it. Used by one thread at a time. Throws std::bad_alloc when memory is short.
// The layout is described in docs/formats/gif.md.
class GifFrameEncoder {
  public:
    // The animation outlives this.
    GifFrameEncoder(const Animation& animation, const GifSaveOptions& options);
    // False when it lacks memory, without which its frames may not be dithered.
    bool HasMemory() const { return mapper_.HasMemory(); }

    // The frame's control block and image. The progress counts its rows; when the work is stopped,
    // the bytes are not complete.
    ByteWriter Encode(const Frame& frame, SharedProgress& progress);

    // Appends 1 << bits colors.
    static void AddColorTable(const Palette& palette, int32 bits, ByteWriter& bytes);
    // How long a frame is shown, in hundredths of a second. A file keeps the low 16 bits.
    static int64 DelayOf(const Animation& animation, const Frame& frame, bool in_seconds);

  private:
    // How one frame is written: decided once, used for its header and its data.
    struct Encoding {
        const Palette* palette = nullptr;  // the frame's local one, else the animation's; not owned
        int32 bits = 0;                    // of the color table and of the codes
        bool local_table = false;
    };
    Encoding EncodingOf(const Frame& frame, const SharedProgress& progress) const;
    void AddControlBlock(const Frame& frame, ByteWriter& bytes) const;
    void AddImageHeader(const Frame& frame, const Encoding& encoding, ByteWriter& bytes) const;

    const Animation& animation_;
    const GifSaveOptions options_;
    PixelMapper mapper_;
};

}  // namespace kirto
