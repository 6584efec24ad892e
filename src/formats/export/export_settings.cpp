#include "formats/export/export_settings.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <limits>
#include <sstream>
#include <utility>
#include <vector>

#include "base/number.h"
#include "base/text.h"
#include "color/color_text.h"

namespace kirto {

namespace {

struct NumberChoice {
    const char* name;
    int32 ExportSettings::*field;
    int32 least;
    int32 most;
};

constexpr NumberChoice kNumberChoices[] = {{"colors", &ExportSettings::colors, 2, 256},
                                           {"loss", &ExportSettings::loss, 0, 200},
                                           {"scale", &ExportSettings::scale, 1, 400},
                                           {"every", &ExportSettings::every, 1, kMostFramesAStep},
                                           {"strength", &ExportSettings::strength, 0, 100},
                                           {"columns", &ExportSettings::columns, 0, kMostColumns},
                                           {"padding", &ExportSettings::padding, 0, kMostPadding}};

constexpr std::pair<const char*, AdaptiveDither> kDithers[] = {
    {"none", AdaptiveDither::kNone},
    {"diffusion", AdaptiveDither::kErrorDiffusion},
    {"ordered", AdaptiveDither::kOrdered}};

constexpr std::pair<const char*, ExportFormat> kExtensions[] = {
    {".gif", ExportFormat::kGif},   {".webp", ExportFormat::kWebp}, {".png", ExportFormat::kApng},
    {".apng", ExportFormat::kApng}, {".mp4", ExportFormat::kMp4},   {".webm", ExportFormat::kWebm}};

constexpr int32 kBestQuality = 100;
constexpr size_t kLongestExtension = 8;

std::string Expected(std::string_view name, const std::string& values) {
    return Format("%.*s is to be %s.", static_cast<int>(name.size()), name.data(), values.c_str());
}

bool ReadNumber(std::string_view text, int32 least, int32 most, int32* number) {
    int32 read = 0;
    if (!ParseNumber(text, &read) || read < least || read > most) return false;
    *number = read;
    return true;
}

std::string ReadDither(std::string_view value, ExportSettings* settings) {
    for (const auto& [name, dither] : kDithers) {
        if (value != name) continue;
        settings->dither = dither;
        return {};
    }
    return Expected("dither", "none, diffusion or ordered");
}

std::string ReadTable(std::string_view value, ExportSettings* settings) {
    if (value != "one" && value != "each") return Expected("table", "one or each");
    settings->one_table = value == "one";
    return {};
}

std::string ReadAreas(std::string_view value, ExportSettings* settings) {
    if (value != "changed" && value != "whole") return Expected("areas", "changed or whole");
    settings->areas = value == "whole" ? FrameAreas::kWhole : FrameAreas::kChanged;
    return {};
}

std::string ReadQuality(std::string_view value, ExportSettings* settings) {
    int32 quality = 0;
    if (value == "lossless") {
        settings->quality.reset();
    } else if (ReadNumber(value, 0, kBestQuality, &quality)) {
        settings->quality = quality;
    } else {
        return Expected("quality", "0 to 100, or lossless");
    }
    return {};
}

// Texts are words of letters and digits.
std::string ReadImage(std::string_view value, ExportSettings* settings) {
    const bool sound = !value.empty() && value.size() <= kLongestExtension &&
                       std::all_of(value.begin(), value.end(), [](char c) {
                           return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
                       });
    if (!sound) return Expected("image", "the extension of an image file, such as png");
    settings->image = value;
    return {};
}

std::string ReadFormat(std::string_view value, ExportSettings* settings) {
    if (value == "sheet") {
        settings->format = ExportFormat::kSheet;
    } else if (value == "images") {
        settings->format = ExportFormat::kImages;
    } else if (value != "file") {
        return Expected("format", "sheet, images or file");
    } else if (HasPictures(settings->format)) {
        settings->format = ExportFormat::kGif;
    }
    return {};
}

std::string ReadMatte(std::string_view value, ExportSettings* settings) {
    if (ParseColor("#" + std::string(value), &settings->matte)) return {};
    return Expected("matte", "a color RRGGBB");
}

using Reader = std::string (*)(std::string_view, ExportSettings*);
constexpr std::pair<const char*, Reader> kReaders[] = {
    {"table", ReadTable}, {"areas", ReadAreas}, {"dither", ReadDither}, {"quality", ReadQuality},
    {"matte", ReadMatte}, {"image", ReadImage}, {"format", ReadFormat}};

std::string UnknownChoice() {
    std::string names;
    for (const NumberChoice& choice : kNumberChoices)
        names += std::string(choice.name) + ", ";
    for (const auto& [name, reader] : kReaders)
        names += std::string(name) + ", ";
    names.resize(names.size() - 2);
    return "The choices are NAME=VALUE; the names are " + names + ".";
}

std::string ReadChoice(std::string_view name, std::string_view value, ExportSettings* settings) {
    for (const NumberChoice& choice : kNumberChoices) {
        if (name != choice.name) continue;
        if (ReadNumber(value, choice.least, choice.most, &(settings->*choice.field))) return {};
        return Expected(name, Format("%d to %d", choice.least, choice.most));
    }
    for (const auto& [known, read] : kReaders) {
        if (name == known) return read(value, settings);
    }
    return UnknownChoice();
}

const char* NameOfDither(AdaptiveDither wanted) {
    for (const auto& [name, dither] : kDithers) {
        if (dither == wanted) return name;
    }
    return kDithers[0].first;
}

std::vector<std::string> WordsOf(const ExportSettings& settings) {
    std::istringstream text(TextOf(settings));
    std::vector<std::string> words;
    for (std::string word; text >> word;)
        words.push_back(word);
    return words;
}

}  // namespace

bool operator==(const ExportSettings& a, const ExportSettings& b) {
    return a.format == b.format && TextOf(a) == TextOf(b);
}

std::optional<ExportFormat> ExportFormatOf(const std::string& path) {
    const std::string extension = '.' + ExtensionOf(path);
    for (const auto& [known, format] : kExtensions) {
        if (extension == known) return format;
    }
    return std::nullopt;
}

std::string ExtensionOf(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension.empty() ? extension : extension.substr(1);
}

bool HasPictures(ExportFormat format) {
    return format == ExportFormat::kSheet || format == ExportFormat::kImages;
}

const char* NameOf(ExportFormat format) {
    switch (format) {
        case ExportFormat::kGif:
            return "GIF";
        case ExportFormat::kWebp:
            return "WebP";
        case ExportFormat::kApng:
            return "APNG";
        case ExportFormat::kMp4:
            return "MP4";
        case ExportFormat::kWebm:
            return "WebM";
        case ExportFormat::kSheet:
            return "Sheet";
        case ExportFormat::kImages:
            return "Images";
    }
    return "";
}

std::string ReadExportChoice(std::string_view text, ExportSettings* settings) {
    const size_t equals = text.find('=');
    if (equals == std::string_view::npos) return UnknownChoice();
    return ReadChoice(text.substr(0, equals), text.substr(equals + 1), settings);
}

std::string TextOf(const ExportSettings& settings) {
    std::string text;
    for (const NumberChoice& choice : kNumberChoices)
        text += Format("%s=%d ", choice.name, settings.*choice.field);
    text += std::string("table=") + (settings.one_table ? "one" : "each");
    text += std::string(" areas=") + (settings.areas == FrameAreas::kWhole ? "whole" : "changed");
    text += std::string(" dither=") + NameOfDither(settings.dither) + " quality=";
    text += settings.quality ? std::to_string(*settings.quality) : "lossless";
    return text + " matte=" + TextOfColor(settings.matte).substr(1) + " image=" + settings.image;
}

std::string GivenUp(const ExportSettings& wanted, const ExportSettings& given) {
    const std::vector<std::string> before = WordsOf(wanted);
    const std::vector<std::string> after = WordsOf(given);
    std::string text;
    for (size_t i = 0; i < after.size(); ++i) {
        if (after[i] != before[i]) text += (text.empty() ? "" : " ") + after[i];
    }
    return text;
}

std::optional<uint64> ParseByteSize(std::string_view text) {
    static constexpr std::pair<std::string_view, uint64> kUnits[] = {
        {"KiB", 1 << 10}, {"MiB", 1 << 20}, {"KB", 1000}, {"MB", 1000000}, {"B", 1}};
    uint64 unit = 1;
    for (const auto& [name, bytes] : kUnits) {
        if (!text.ends_with(name)) continue;
        unit = bytes;
        text.remove_suffix(name.size());
        break;
    }
    uint64 number = 0;
    if (!ParseNumber(text, &number) || number == 0) return std::nullopt;
    if (number > std::numeric_limits<uint64>::max() / unit) return std::nullopt;
    return number * unit;
}

}  // namespace kirto
