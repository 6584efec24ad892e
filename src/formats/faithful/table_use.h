// How the pixels of an image become indices: of which table, and which pixels are skipped.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/types.h"
#include "formats/faithful/frame_plan.h"
#include "formats/faithful/gif_table.h"

namespace kirto {

// The pixels of an image's rectangle in the order of its data.
struct ImageArea {
    std::vector<uint32> keys;
    std::vector<uint8> skippable;  // 1 where the screen shows them already, else 0
};

// Of an area's pixels in a table.
struct TableIndices {
    static constexpr uint16 kNone = 0xFFFF;  // of colors that the table has not

    std::vector<uint16> indices;
    uint16 largest = 0;
};

// A table, and how many of its indices are made use of.
struct TableUse {
    GifTable table;
    std::shared_ptr<const TableIndices> indices;  // of the area that it is used for
    bool local = false;
    int32 transparent_index = GifTable::kNone;  // kNone: no pixel is skipped
    int32 bits = 2;                             // of the indices
};

// The uses of a table for all images that there are for this one: skipping pixels, and drawing all.
std::vector<TableUse> GlobalUses(const GifTable& table, const FramePlan& plan,
                                 const ImageArea& area);
// The same with a table of the image's own, as far as fewer bits do than `below`; at least one
// where that is above 8.
std::vector<TableUse> LocalUses(const FramePlan& plan, const ImageArea& area, int32 below);

// Indices for an area.
struct Drawing {
    std::vector<uint8> indices;
    bool chooses = false;  // where the area is skippable, the transparent index does as well
};

// What may be small: all drawn, or else long stretches skipped, or as the encoder likes.
std::vector<Drawing> DrawingsOf(const ImageArea& area, const TableUse& use);

}  // namespace kirto
