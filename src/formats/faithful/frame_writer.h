#pragma once

#include <span>
#include <vector>

#include "base/byte_writer.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/faithful/choice_lzw_encoder.h"
#include "formats/faithful/frame_plan.h"
#include "formats/faithful/gif_table.h"
#include "formats/faithful/table_use.h"

namespace kirto {

// What all images of a file are written with.
struct FileLayout {
    GifTable global_table;
    // What that table was in the file that images come from, where they have it.
    std::shared_ptr<const std::vector<rgb_color>> given;
    bool interlaced = false;  // images that are made
    int64 tolerance = 0;      // their pixels may get colors that are no farther away, squared
};

// Encodes images as planned, each by itself and as small as it gets: the bytes of an image do not
// depend on which were encoded before it. Used by one thread at a time; throws std::bad_alloc.
class FrameWriter {
  public:
    // All outlive this.
    FrameWriter(const Screen& screen, const FramePlans& plans, const FileLayout& layout,
                const Work& work)
        : screen_(screen), plans_(plans), layout_(layout), work_(work), encoder_(work) {}

    // The image's control block, its header and its data.
    ByteWriter Encode(int32 plan);

  private:
    // An image as it might be written.
    struct Encoding {
        TableUse use;
        Drawing drawing;
        std::vector<uint8> data;  // codes; empty: there is none yet
        LzwPace pace;             // of them
        bool filled = false;      // they fill a table of strings
        // What the table and the data take in the file.
        size_t Size() const;
    };

    void WriteSource(const FramePlan& plan, ByteWriter* bytes) const;
    ImageArea AreaOf(const FramePlan& plan) const;
    Encoding Smallest(const FramePlan& plan, const ImageArea& area);
    void Compress(const ImageArea& area, const TableUse& use, Encoding* best);
    void Tolerate(const ImageArea& area, Encoding* best);
    static ChoiceLzwEncoder::Image ImageOf(const ImageArea& area, const Encoding& encoding);
    void Refine(const ImageArea& area, Encoding* best);

    const Screen& screen_;
    const FramePlans& plans_;
    const FileLayout& layout_;
    const Work& work_;
    ChoiceLzwEncoder encoder_;
};

}  // namespace kirto
