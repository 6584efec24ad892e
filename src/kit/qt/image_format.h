// The image formats known by name, whichever of them this machine has plugins for.
#pragma once

#include <vector>

#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// One image format as Qt and as translators call it.
struct ImageFormat {
    translator_id id = 0;
    const char* qt_name = "";  // empty: Targa, which is not Qt's
    translation_format format;
    BMessage settings;  // the writer's settings with their defaults
};

// All known formats; their ids never change.
const std::vector<ImageFormat>& KnownImageFormats();

}  // namespace kirto
