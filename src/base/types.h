// The kit's basic types: fixed-width integers, status codes, colors and four-character codes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

using int8 = std::int8_t;
using uint8 = std::uint8_t;
using int16 = std::int16_t;
using uint16 = std::uint16_t;
using int32 = std::int32_t;
using uint32 = std::uint32_t;
using int64 = std::int64_t;
using uint64 = std::uint64_t;

using bigtime_t = int64;  // microseconds
using type_code = uint32;
using status_t = int32;  // B_OK, or one of the negative codes below

inline constexpr status_t B_OK = 0;
inline constexpr status_t B_ERROR = -1;
inline constexpr status_t B_NO_MEMORY = -2;
inline constexpr status_t B_IO_ERROR = -3;
inline constexpr status_t B_BAD_VALUE = -4;
inline constexpr status_t B_ENTRY_NOT_FOUND = -5;
inline constexpr status_t B_NAME_NOT_FOUND = -6;
inline constexpr status_t B_BAD_INDEX = -7;
inline constexpr status_t B_BAD_TYPE = -8;
inline constexpr status_t B_BAD_SEM_ID = -9;
inline constexpr status_t B_WOULD_BLOCK = -10;
inline constexpr status_t B_NOT_ALLOWED = -11;
inline constexpr status_t B_NO_INIT = -12;
inline constexpr status_t B_BAD_DATA = -13;
inline constexpr status_t B_NO_TRANSLATOR = -14;
inline constexpr status_t B_CANCELED = -15;

// One palette entry. Alpha 255 is opaque.
struct rgb_color {
    uint8 red = 0;
    uint8 green = 0;
    uint8 blue = 0;
    uint8 alpha = 0;

    friend bool operator==(const rgb_color&, const rgb_color&) = default;
};

// How a bitmap's bytes are laid out. Only the four 32-bit spaces carry pixels that the editor maps
// to palettes; the others exist so that code can tell "not 32-bit" and refuse it.
enum color_space : int32 {
    B_NO_COLOR_SPACE = 0,
    B_RGB32,       // blue, green, red, alpha (alpha unused by convention, kept as written)
    B_RGBA32,      // blue, green, red, alpha
    B_RGB32_BIG,   // alpha, red, green, blue
    B_RGBA32_BIG,  // alpha, red, green, blue
    B_RGB24,       // blue, green, red
    B_RGB16,       // 5-6-5
    B_CMAP8,       // one palette index a pixel
    B_GRAY8,       // one level a pixel
    B_GRAY1,       // one bit a pixel
};

namespace kirto {

// The 32-bit code whose bytes, most significant first, are the four characters of the text.
consteval uint32 FourCharCode(const char (&text)[5]) {
    uint32 code = 0;
    for (int i = 0; i < 4; ++i) {
        code = (code << 8) | static_cast<uint8>(text[i]);
    }
    return code;
}

// A short English sentence for a status code, for messages to the user.
std::string StatusText(status_t status);

}  // namespace kirto

inline constexpr type_code B_RAW_TYPE = kirto::FourCharCode("RAWT");  // bytes of any meaning
inline constexpr type_code B_INT32_TYPE = kirto::FourCharCode("LONG");
inline constexpr type_code B_INT64_TYPE = kirto::FourCharCode("LLNG");
inline constexpr type_code B_BOOL_TYPE = kirto::FourCharCode("BOOL");
inline constexpr type_code B_FLOAT_TYPE = kirto::FourCharCode("FLOT");
inline constexpr type_code B_DOUBLE_TYPE = kirto::FourCharCode("DBLE");
inline constexpr type_code B_STRING_TYPE = kirto::FourCharCode("CSTR");
inline constexpr type_code B_RECT_TYPE = kirto::FourCharCode("RECT");
inline constexpr type_code B_POINT_TYPE = kirto::FourCharCode("BPNT");
inline constexpr type_code B_REF_TYPE = kirto::FourCharCode("RREF");
inline constexpr type_code B_MESSAGE_TYPE = kirto::FourCharCode("MSGG");
inline constexpr type_code B_POINTER_TYPE = kirto::FourCharCode("PNTR");

// Message codes that belong to the kit rather than to one program.
inline constexpr uint32 B_QUIT_REQUESTED = kirto::FourCharCode("_QRQ");
inline constexpr uint32 B_ABOUT_REQUESTED = kirto::FourCharCode("_ABR");
inline constexpr uint32 B_CANCEL = kirto::FourCharCode("_CNC");
inline constexpr uint32 B_SIMPLE_DATA = kirto::FourCharCode("DATA");
// What the target of a drag asks the drag's beginner for: a file in the ref "directory", called by
// the string "name".
inline constexpr uint32 B_COPY_TARGET = kirto::FourCharCode("DDCP");
inline constexpr uint32 B_REFS_RECEIVED = kirto::FourCharCode("_RRC");
