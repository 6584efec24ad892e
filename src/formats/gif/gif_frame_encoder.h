#pragma once

#include "animation/animation.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/gif/pixel_mapper.h"
#include "kit/file.h"

namespace kirto {

// How an animation is written, besides what it says itself.
struct GifSaveOptions {
    bool interlaced = false;
    bool comment = false;           // with a comment of the program's own
    bool pause_in_seconds = false;  // the unit of the animation's pauses; else hundredths
    int32 disposal = 0;             // of each frame, 0 to 3
};

// Encodes the frames of an animation, each by itself. The layout is described in
// docs/formats/gif.md.
class GifFrameEncoder {
  public:
    // The animation outlives this.
    GifFrameEncoder(const Animation& animation, const GifSaveOptions& options);

    // Writes the frame's control block and image. Write results are not checked here: the file
    // remembers its first error. The work is told rows_done and the rows after them, of rows; when
    // it is stopped, what is written is not complete.
    void Encode(const Frame& frame, BFile& file, Work& work, int64 rows_done, int64 rows);

    // Writes 1 << bits colors.
    static void WriteColorTable(const Palette& palette, int32 bits, BFile& file);
    // How long a frame is shown, in hundredths of a second. A file keeps the low 16 bits.
    static int64 DelayOf(const Animation& animation, const Frame& frame, bool in_seconds);

  private:
    // How one frame is written: decided once, used for its header and its data.
    struct Encoding {
        const Palette* palette = nullptr;  // the frame's local one, else the animation's; not owned
        int32 bits = 0;                    // of the color table and of the codes
        bool local_table = false;
    };
    Encoding EncodingOf(const Frame& frame, const Work& work) const;
    void WriteGifControlBlock(const Frame& frame, BFile& file) const;
    void WriteGifImageHeader(const Frame& frame, const Encoding& encoding, BFile& file) const;

    const Animation& animation_;
    const GifSaveOptions options_;
    PixelMapper mapper_;
};

}  // namespace kirto
