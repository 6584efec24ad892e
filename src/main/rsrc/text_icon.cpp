#include "main/rsrc/text_icon.h"

#include <array>
#include <charconv>

#include "base/text.h"
#include "color/palette.h"

namespace kirto {

namespace {

// What stands between pairs of quotation marks.
std::vector<std::string_view> QuotedLines(std::string_view text) {
    std::vector<std::string_view> lines;
    for (size_t open = text.find('"'); open != std::string_view::npos;) {
        const size_t close = text.find('"', open + 1);
        if (close == std::string_view::npos) break;
        lines.push_back(text.substr(open + 1, close - open - 1));
        open = text.find('"', close + 1);
    }
    return lines;
}

// "WIDTH HEIGHT COLORS 1" of a square picture: the number of colors.
std::optional<size_t> ColorCountOf(std::string_view line, int32 side) {
    const std::string start = Format("%d %d ", side, side);
    if (!line.starts_with(start) || !line.ends_with(" 1")) return std::nullopt;
    line = line.substr(start.size(), line.size() - start.size() - 1);
    size_t count = 0;
    const auto [end, status] = std::from_chars(line.data(), line.data() + line.size(), count);
    if (status != std::errc() || end != line.data() + line.size() - 1) return std::nullopt;
    return count;
}

// The palette without the index that means transparency.
Palette OpaqueSystemPalette() {
    Palette palette(kPaletteSystem);
    palette.size = kTransparentIconIndex;
    return palette;
}

// "#RRGGBB" or "None".
std::optional<uint8> IndexOf(std::string_view color, const Palette& palette) {
    if (color == "None") return kTransparentIconIndex;
    uint32 rgb = 0;
    if (color.size() != 7 || color[0] != '#') return std::nullopt;
    const auto [end, status] = std::from_chars(color.data() + 1, color.data() + 7, rgb, 16);
    if (status != std::errc() || end != color.data() + 7) return std::nullopt;
    return palette.IndexForColor(static_cast<uint8>(rgb >> 16), static_cast<uint8>(rgb >> 8),
                                 static_cast<uint8>(rgb));
}

// The palette index that each character stands for.
using Legend = std::array<std::optional<uint8>, 256>;

// Lines of the form "X c COLOUR".
bool ReadLegend(const std::vector<std::string_view>& lines, size_t count, Legend* legend) {
    const Palette palette = OpaqueSystemPalette();
    for (size_t i = 1; i <= count; ++i) {
        const std::string_view line = lines[i];
        if (line.size() < 4 || line.substr(1, 3) != " c ") return false;
        const std::optional<uint8> index = IndexOf(line.substr(4), palette);
        if (!index) return false;
        (*legend)[static_cast<uint8>(line[0])] = index;
    }
    return true;
}

}  // namespace

std::optional<std::vector<uint8>> ReadTextIcon(std::string_view text, int32 side,
                                               std::string* error) {
    const auto rows = static_cast<size_t>(side);
    const std::vector<std::string_view> lines = QuotedLines(text);
    const std::optional<size_t> colors =
        lines.empty() ? std::nullopt : ColorCountOf(lines[0], side);
    if (!colors || *colors > 256 || lines.size() != 1 + *colors + rows) {
        *error = Format("not an XPM image of %d x %d with one character per pixel", side, side);
        return std::nullopt;
    }
    Legend legend;
    if (!ReadLegend(lines, *colors, &legend)) {
        *error = R"(a color that is neither "X c #RRGGBB" nor "X c None")";
        return std::nullopt;
    }
    std::vector<uint8> pixels;
    for (size_t row = 0; row < rows; ++row) {
        const std::string_view line = lines[1 + *colors + row];
        for (const char pixel : line) {
            const std::optional<uint8> index = legend[static_cast<uint8>(pixel)];
            if (index) pixels.push_back(*index);
        }
        if (line.size() != rows || pixels.size() != (row + 1) * rows) {
            *error = Format("row %zu does not have exactly %d known characters", row, side);
            return std::nullopt;
        }
    }
    return pixels;
}

}  // namespace kirto
