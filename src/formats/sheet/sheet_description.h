// What is where on a sheet of sprites, as the JSON text beside its picture says.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kirto {

struct SheetFrame {
    std::string name;
    int32 left = 0;  // on the sheet, pixels; 0 or more, as top
    int32 top = 0;
    int32 width = 0;  // 1 or more, as height
    int32 height = 0;
    int32 x_offset = 0;  // in the whole frame, which it may be a part of; 0 or more, as y_offset
    int32 y_offset = 0;
    int32 whole_width = 0;  // 1 or more, as whole_height
    int32 whole_height = 0;
    std::optional<double> milliseconds;  // how long it is shown; 0 or more

    // Whether all of it is on a sheet of that size.
    bool LiesOn(int32 sheet_width, int32 sheet_height) const {
        return int64{left} + width <= sheet_width && int64{top} + height <= sheet_height;
    }
};

struct SheetDescription {
    std::string image;  // the name of the picture's file
    int32 width = 0;    // of the sheet, pixels
    int32 height = 0;
    std::vector<SheetFrame> frames;
};

// The text in its widely used form: "frames", an array of objects with "filename", "frame",
// "rotated", "trimmed", "spriteSourceSize", "sourceSize" and "duration", and "meta".
std::string SheetDescriptionText(const SheetDescription& description);

// Reads such a text; of a frame nothing but "frame" has to be there. Nothing for other text, for
// numbers out of their bounds, and where a frame lies turned on the sheet.
std::optional<SheetDescription> ReadSheetDescription(std::string_view text);

}  // namespace kirto
