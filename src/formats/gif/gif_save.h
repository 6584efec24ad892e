#pragma once

#include <memory>

#include "base/types.h"
#include "color/palette.h"
#include "document/animation_document.h"
#include "formats/gif/pixel_mapper.h"
#include "kit/file.h"

// Writes a document's animation, as it is at the start, as an animated GIF89a. The constructor does
// all the work; the document's work tells how far it is, and when that is stopped the file is not
// complete. Write results are not checked here: the file remembers its first error. The methods are
// in the order of the file; the layout is described in docs/formats/gif.md.
class GifSave {
  public:
    // file: empty and writable; this object shares it with the caller, who commits it afterward.
    GifSave(std::shared_ptr<BFile> file, AnimationDocument& document);

    // How long a frame is shown, in hundredths of a second. A file keeps the low 16 bits.
    static int64 DelayOf(const kirto::Animation& animation, const Frame& frame, bool in_seconds);

  private:
    void WriteGifHeader();
    void WriteGifControlBlock(const Frame& frame);
    void WriteGifImageHeader(const Frame& frame);
    void WriteGifImageData(const Frame& frame);

    // How one frame is written: decided once, used for its header and its data.
    struct Encoding {
        const Palette* palette = nullptr;  // the frame's local one, else the document's; not owned
        int32 bits = 0;                    // of the color table and of the codes
        bool local_table = false;
    };
    Encoding EncodingOf(const Frame& frame) const;
    void WriteColorTable(const Palette& palette, int32 bits);
    int64 CountRows() const;
    int32 WidestFrame() const;

    std::shared_ptr<BFile> file_;
    AnimationDocument& document_;
    const std::shared_ptr<const kirto::Animation> animation_;
    const bool interlaced_;
    const int64 rows_;  // of all frames
    int64 rows_written_ = 0;
    kirto::PixelMapper mapper_;
    Encoding encoding_;  // of the frame being written
};
