// What the options of the editor are called and what they do, for its --help and its manual.
#pragma once

#include <span>

#include "main/options/option_text.h"

namespace kirto {

inline constexpr const char* kEditorPurpose = "Edits frame animations.";

inline constexpr const char* kEditorFiles =
    "A file that is an animation (GIF, FLI, FLC, WebP, APNG) is opened; images are inserted as "
    "frames.\n"
    "The toolkit's options, such as -style NAME and -platform NAME, are understood as well.";

std::span<const OptionText> EditorOptions();

}  // namespace kirto
