#include "kit/image_header.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>

#include "kit/image_header_parsers.h"

namespace kirto {

namespace {

using image_header::Head;

struct Kind {
    bool (*recognise)(const Head& head);
    bool (*read)(Head& head, ImageHeader* header);
    const char* format;
    uint64 working_bytes;  // a pixel
};

template <char... kBytes>
bool StartsWith(const Head& head) {
    static constexpr char kMagic[] = {kBytes...};
    return head.Text().starts_with(std::string_view(kMagic, sizeof(kMagic)));
}

bool IsWebP(const Head& head) {
    return head.Text().starts_with("RIFF") && head.Has(8, "WEBP");
}

bool IsAvif(const Head& head) {
    return head.Has(4, "ftypavif") || head.Has(4, "ftypavis");
}

bool IsHeif(const Head& head) {
    return head.Has(4, "ftyp") && (head.Has(8, "hei") || head.Has(8, "hev") || head.Has(8, "mif1"));
}

bool IsJpegXl(const Head& head) {
    return head.Text().starts_with("\xFF\x0A") || head.Has(4, "JXL \r\n");
}

bool IsTiff(const Head& head) {
    const std::string_view text = head.Text();
    using namespace std::string_view_literals;
    return text.starts_with("II*\0"sv) || text.starts_with("MM\0*"sv) ||
           text.starts_with("II+\0"sv) || text.starts_with("MM\0+"sv);
}

bool IsIcon(const Head& head) {
    using namespace std::string_view_literals;
    const std::string_view text = head.Text();
    return text.starts_with("\0\0\1\0"sv) || text.starts_with("\0\0\2\0"sv);
}

template <char kFirst, char kLast>
bool IsAnyMap(const Head& head) {
    const std::string_view text = head.Text();
    return text.size() > 2 && text[0] == 'P' && text[1] >= kFirst && text[1] <= kLast &&
           std::isspace(static_cast<uint8>(text[2])) != 0;
}

bool IsXpm(const Head& head) {
    return head.Text().starts_with("/* XPM");
}

bool IsXbm(const Head& head) {
    return head.Text().starts_with("#define") || head.Text().starts_with("/*");
}

bool IsDrawing(const Head& head) {
    std::string_view text = head.Text();
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    return text.starts_with("<?xml") || text.starts_with("<svg") || text.starts_with("<!");
}

bool IsWirelessBitmap(const Head& head) {
    return head.Text().size() > 4 && head.Byte(0) == 0 && (head.Byte(1) & 0x9F) == 0;
}

bool ReadNothing(Head&, ImageHeader*) {
    return true;
}

// The first that recognises a file has it. Last come those that others might be taken for.
constexpr std::array kKinds = {
    Kind{StartsWith<'\x89', 'P', 'N', 'G', '\r', '\n', '\x1A', '\n'>, image_header::ReadPng, "png",
         0},
    Kind{StartsWith<'\xFF', '\xD8', '\xFF'>, image_header::ReadJpeg, "jpeg", 0},
    Kind{StartsWith<'G', 'I', 'F', '8'>, image_header::ReadGif, "gif", 4},
    Kind{StartsWith<'B', 'M'>, image_header::ReadBmp, "bmp", 0},
    Kind{IsWebP, image_header::ReadWebP, "webp", 4},
    Kind{IsTiff, image_header::ReadTiff, "tiff", 4},
    Kind{StartsWith<'\x8A', 'M', 'N', 'G', '\r', '\n', '\x1A', '\n'>, image_header::ReadMng, "mng",
         0},
    Kind{StartsWith<'i', 'c', 'n', 's'>, image_header::ReadIcon, "icns", 0},
    Kind{IsIcon, image_header::ReadIcon, "ico", 0},
    Kind{IsAnyMap<'1', '1'>, image_header::ReadAnyMap, "pbm", 0},
    Kind{IsAnyMap<'4', '4'>, image_header::ReadAnyMap, "pbm", 0},
    Kind{IsAnyMap<'2', '2'>, image_header::ReadAnyMap, "pgm", 0},
    Kind{IsAnyMap<'5', '5'>, image_header::ReadAnyMap, "pgm", 0},
    Kind{IsAnyMap<'3', '3'>, image_header::ReadAnyMap, "ppm", 0},
    Kind{IsAnyMap<'6', '6'>, image_header::ReadAnyMap, "ppm", 0},
    Kind{IsXpm, image_header::ReadXpm, "xpm", 0},
    Kind{IsXbm, image_header::ReadXbm, "xbm", 0},
    Kind{IsAvif, image_header::ReadHeif, "avif", 12},
    Kind{IsHeif, image_header::ReadHeif, "heif", 12},
    Kind{StartsWith<'\0', '\0', '\0', '\x0C', 'j', 'P', ' ', ' '>, image_header::ReadJpeg2000,
         "jp2", 12},
    Kind{IsJpegXl, image_header::ReadJpegXl, "jxl", 12},
    Kind{StartsWith<'\x1F', '\x8B'>, ReadNothing, "svg", 0},
    Kind{IsDrawing, ReadNothing, "svg", 0},
    Kind{IsWirelessBitmap, image_header::ReadWirelessBitmap, "wbmp", 0},
};

}  // namespace

uint64 ImageHeader::Pixels() const {
    if (height != 0 && width > kMostPixels / height) return kMostPixels;
    return width * height;
}

ImageHeader ReadImageHeader(BFile& source) {
    Head head(source);
    for (const Kind& kind : kKinds) {
        if (!kind.recognise(head)) continue;
        ImageHeader header{kind.format};
        if (!kind.read(head, &header)) return {};
        header.working_bytes += kind.working_bytes * header.Pixels();
        return header;
    }
    return {};
}

}  // namespace kirto
