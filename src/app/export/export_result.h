#pragma once

#include <string>

#include "formats/export/export_settings.h"

namespace kirto {

enum class ExportResult {
    kDone,
    kNoFrames,  // or no canvas
    kTooLarge,  // the format has no room for such sides
    kNoWriter,  // nothing here writes the format
    kNoMemory,
    kFailed,        // of what writes videos or image files
    kTooManyBytes,  // however it is exported, its file is larger than it may be
    kStopped
};

// A sentence for the user, or an empty text for kDone.
std::string SentenceOf(ExportResult result, ExportFormat format);

}  // namespace kirto
