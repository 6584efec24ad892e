// Choices of an export, spelled by arbitrary bytes: whatever is read stays within its ranges, and
// the text of settings reads as the same settings.
#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "formats/export/export_settings.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckRanges(const kirto::ExportSettings& settings) {
    Check(settings.colors >= 2 && settings.colors <= 256);
    Check(settings.loss >= 0 && settings.loss <= 200);
    Check(settings.strength >= 0 && settings.strength <= 100);
    Check(settings.columns >= 0 && settings.columns <= kirto::kMostColumns);
    Check(settings.padding >= 0 && settings.padding <= kirto::kMostPadding);
    Check(!settings.image.empty() && settings.image.find(' ') == std::string::npos);
    Check(settings.scale >= 1 && settings.scale <= 400);
    Check(settings.every >= 1 && settings.every <= kirto::kMostFramesAStep);
    Check(!settings.quality || (*settings.quality >= 0 && *settings.quality <= 100));
}

// One choice a part of the text.
void ReadAll(std::string_view text, char between, kirto::ExportSettings* settings) {
    while (!text.empty()) {
        const std::string_view choice = text.substr(0, text.find(between));
        const kirto::ExportSettings before = *settings;
        const bool read = kirto::ReadExportChoice(choice, settings).empty();
        Check(read || *settings == before);
        text.remove_prefix(std::min(choice.size() + 1, text.size()));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    kirto::ExportSettings settings;
    ReadAll(text, '\n', &settings);
    CheckRanges(settings);
    kirto::ExportSettings again;
    again.format = settings.format;
    ReadAll(kirto::TextOf(settings), ' ', &again);
    Check(again == settings);
    const auto bytes = kirto::ParseByteSize(text);
    Check(!bytes || *bytes > 0);
    return 0;
}
