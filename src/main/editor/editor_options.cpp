#include "main/editor/editor_options.h"

namespace kirto {

namespace {

constexpr OptionText kOptions[] = {
    {"--help", nullptr, "Print this help"},
    {"--version", nullptr, "Print the version"},
    {"--screenshot", "PNG", "Write a picture of the window with the files, and exit"},
};

}  // namespace

std::span<const OptionText> EditorOptions() {
    return kOptions;
}

}  // namespace kirto
