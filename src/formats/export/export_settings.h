#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "animation/frame_areas.h"
#include "base/types.h"
#include "color/adaptive/adaptive_mapper.h"

namespace kirto {

enum class ExportFormat { kGif, kWebp, kApng, kMp4, kWebm, kSheet, kImages };

// Of how many frames one may be kept.
inline constexpr int32 kMostFramesAStep = 100;
inline constexpr int32 kMostColumns = 10000;
inline constexpr int32 kMostPadding = 1000;

// How an animation is exported: a plain value. Choices that the format does not know count for
// nothing.
struct ExportSettings {
    ExportFormat format = ExportFormat::kGif;
    int32 colors = 256;      // GIF: of a frame, 2 to 256
    bool one_table = false;  // GIF: all frames have the same colors
    // GIF: none, as what is mixed of other colors takes more bytes than it is worth
    AdaptiveDither dither = AdaptiveDither::kNone;
    int32 strength = 100;                     // GIF: of mixing, 0 to 100 percent
    int32 loss = 0;                           // GIF: 0 to 200; see ToleranceOf
    FrameAreas areas = FrameAreas::kChanged;  // GIF and APNG
    // WebP and videos: 0 to 100, the best. Nothing: WebP keeps every pixel, videos are good.
    std::optional<int32> quality;
    rgb_color matte{255, 255, 255, 255};  // GIF and videos: what soft edges are laid on
    int32 scale = 100;                    // percent of the size, 1 to 400
    int32 every = 1;    // keeps every n-th frame, and all of the time; 1 to kMostFramesAStep
    int32 columns = 0;  // sheet: of frames; 0: about as many as rows; up to kMostColumns
    int32 padding = 0;  // sheet: pixels between the frames, up to kMostPadding
    std::string image = "png";  // sheet and images: the extension of their files

    friend bool operator==(const ExportSettings& a, const ExportSettings& b);
};

// The format of a file by its extension: .gif, .webp, .png or .apng, .mp4, .webm.
std::optional<ExportFormat> ExportFormatOf(const std::string& path);
// Without dot, in lower case.
std::string ExtensionOf(const std::string& path);
// Sheets and numbered images, which no extension stands for.
bool HasPictures(ExportFormat format);
const char* NameOf(ExportFormat format);

// Takes over a choice: "colors=64", "table=one" or "each", "areas=changed" or "whole",
// "dither=none", "diffusion" or "ordered", "strength=50", "loss=40", "quality=80" or "lossless",
// "matte=RRGGBB", "scale=50", "every=2", "columns=8", "padding=1", "image=png"; "format=sheet" or
// "images", or "file" for those that extensions stand for. Empty; or, where nothing has changed, a
// sentence that says what is wrong.
std::string ReadExportChoice(std::string_view text, ExportSettings* settings);
// The same as text, every choice but the format, with blanks between.
std::string TextOf(const ExportSettings& settings);

// The choices that differ, as they are now: "colors=64 loss=40". Empty where none does.
std::string GivenUp(const ExportSettings& wanted, const ExportSettings& given);

// Bytes: "500000", "500KB" and "8MB" (thousands), "500KiB" and "8MiB" (of 1024). Nothing for other
// text, and for 0.
std::optional<uint64> ParseByteSize(std::string_view text);

}  // namespace kirto
