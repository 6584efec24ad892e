// Reading arbitrary bytes as the text that describes a sheet, and what was read once more after
// writing it.
#include <cstdlib>

#include "formats/sheet/sheet_description.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto read = kirto::ReadSheetDescription({reinterpret_cast<const char*>(data), size});
    if (!read) return 0;
    const auto again = kirto::ReadSheetDescription(kirto::SheetDescriptionText(*read));
    if (!again || again->frames.size() != read->frames.size()) std::abort();
    for (size_t i = 0; i < read->frames.size(); ++i) {
        if (again->frames[i].left != read->frames[i].left ||
            again->frames[i].whole_height != read->frames[i].whole_height) {
            std::abort();
        }
    }
    return 0;
}
