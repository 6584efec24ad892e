#pragma once

#include <span>
#include <vector>

#include "base/byte_writer.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/faithful/choice_lzw_encoder.h"
#include "formats/faithful/frame_plan.h"
#include "formats/faithful/gif_table.h"

namespace kirto {

// What all images of a file are written with.
struct FileLayout {
    GifTable global_table;
    // What that table was in the file that images come from, where they have it.
    std::shared_ptr<const std::vector<rgb_color>> given;
    bool interlaced = false;  // images that are made
};

// Encodes images as planned, each by itself and as small as it gets: the bytes of an image do not
// depend on which were encoded before it. Used by one thread at a time; throws std::bad_alloc.
class FrameWriter {
  public:
    // All outlive this.
    FrameWriter(const Screen& screen, const FramePlans& plans, const FileLayout& layout,
                const Work& work)
        : screen_(screen), plans_(plans), layout_(layout), encoder_(work) {}

    // The image's control block, its header and its data.
    ByteWriter Encode(int32 plan);

  private:
    // The rectangle's pixels in the order of the data.
    struct Area {
        std::vector<uint32> keys;
        std::vector<uint8> skippable;  // above 0 where the screen shows them already
    };
    // A table, and how many of its indices are made use of.
    struct TableUse {
        GifTable table;
        bool local = false;
        int32 transparent_index = GifTable::kNone;
        int32 bits = 2;           // of the indices
        std::vector<uint8> data;  // codes; empty: not tried yet
        // What the table and the data take in the file.
        size_t Size() const;
    };

    void WriteSource(const FramePlan& plan, ByteWriter* bytes) const;
    Area AreaOf(const FramePlan& plan) const;
    TableUse GlobalUse(const FramePlan& plan) const;
    TableUse LocalUse(const FramePlan& plan, const Area& area) const;
    void Compress(const Area& area, TableUse* use);
    void TryImages(std::span<const ChoiceLzwEncoder::Image> images, TableUse* use);
    size_t TryImage(const ChoiceLzwEncoder::Image& image, const ChoiceLzwEncoder::Effort& effort,
                    TableUse* use);
    TableUse Smallest(const FramePlan& plan, const Area& area);

    const Screen& screen_;
    const FramePlans& plans_;
    const FileLayout& layout_;
    ChoiceLzwEncoder encoder_;
};

}  // namespace kirto
