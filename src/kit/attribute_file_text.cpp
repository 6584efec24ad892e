// The part of AttributeFile that knows the text form.
#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <new>
#include <toml++/toml.h>

#include "base/allocation.h"
#include "base/text.h"
#include "kit/attribute_file.h"
#include "kit/rect.h"

namespace kirto {

namespace {

using Attribute = AttributeFile::Attribute;

// The deepest value of the form is a table in the root; a rectangle's line has four dots.
constexpr int kMaxDotsInLine = 64;

constexpr std::string_view kHeading =
    "# Settings, one per line. This file is replaced as a whole: comments in it are not kept.\n";

// --- Attributes to text

template <typename T>
std::optional<T> ValueOf(const std::string& bytes) {
    if (bytes.size() != sizeof(T)) return std::nullopt;
    T value;
    std::memcpy(&value, bytes.data(), sizeof(T));
    return value;
}

// As a TOML basic string.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        const auto byte = static_cast<uint8>(c);
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            quoted += Format("\\u%04x", byte);
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

std::string KeyText(const std::string& name) {
    constexpr std::string_view kBare =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    const bool bare = !name.empty() && name.find_first_not_of(kBare) == std::string::npos;
    return bare ? name : Quoted(name);
}

// The shortest digits that read back to the same value of type T.
template <typename T>
std::string NumberText(T value) {
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
    char digits[64];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), value);
    std::string text(digits, end.ptr);
    if (text.find_first_of(".e") == std::string::npos) text += ".0";
    return text;
}

// Digits that read back to the same float by way of a double, as the file's reader goes. For a few
// floats the shortest digits would be rounded twice, to a neighbor; those are written in full.
std::string EdgeText(float edge) {
    const std::string text = NumberText(edge);
    double wide = 0;
    std::from_chars(text.data(), text.data() + text.size(), wide);
    return static_cast<float>(wide) == edge ? text : NumberText<double>(edge);
}

// "nan" has no sign and no payload, so it stands for one pattern of bits only.
template <typename T>
bool IsCarried(T value) {
    using Bits = std::array<uint8, sizeof(T)>;
    constexpr T kNan = std::numeric_limits<T>::quiet_NaN();
    return !std::isnan(value) || std::bit_cast<Bits>(value) == std::bit_cast<Bits>(kNan);
}

bool FitsInt32(int64 value) {
    return value == static_cast<int32>(value);
}

std::string RectText(const std::array<float, 4>& edges) {
    std::string text;
    for (const float edge : edges) {
        if (!IsCarried(edge)) return {};
        text += (text.empty() ? "[" : ", ") + EdgeText(edge);
    }
    return text + "]";
}

// The short form of the attribute; empty when it has none that reads back to the same bytes.
std::string ShortText(const Attribute& attribute) {
    const std::string& bytes = attribute.bytes;
    switch (attribute.type) {
        case B_INT32_TYPE: {
            const auto value = ValueOf<int32>(bytes);
            return value ? std::to_string(*value) : "";
        }
        case B_INT64_TYPE: {
            const auto value = ValueOf<int64>(bytes);
            return value && !FitsInt32(*value) ? std::to_string(*value) : "";
        }
        case B_BOOL_TYPE: {
            const auto value = ValueOf<uint8>(bytes);
            return value && *value <= 1 ? (*value == 1 ? "true" : "false") : "";
        }
        case B_DOUBLE_TYPE: {
            const auto value = ValueOf<double>(bytes);
            return value && IsCarried(*value) ? NumberText(*value) : "";
        }
        case B_RECT_TYPE: {
            const auto edges = ValueOf<std::array<float, 4>>(bytes);
            return edges ? RectText(*edges) : "";
        }
        case B_STRING_TYPE:
            return IsValidUtf8(bytes) ? Quoted(bytes) : "";
        default:
            return {};
    }
}

// The four characters of the code, or its number where they can't be printed.
std::string TypeText(type_code type) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(type >> shift);
    const auto printable = [](char c) { return c >= 0x20 && c < 0x7F; };
    return std::all_of(text.begin(), text.end(), printable) ? text : Format("0x%08x", type);
}

std::string BytesText(const Attribute& attribute) {
    std::string digits;
    for (const char c : attribute.bytes)
        digits += Format("%02x", static_cast<uint8>(c));
    return "{ type = " + Quoted(TypeText(attribute.type)) + ", bytes = \"" + digits + "\" }";
}

// --- Text to attributes

// The parser sets no bound to the parts of a dotted key, and each part is a table in a table that
// is freed by recursion: a long enough key would overflow the stack. This check looks at the text
// alone and keeps in step with the parser by refusing strings of several lines, which the form
// never has.
bool HasShallowKeys(std::string_view text) {
    char quote = 0;
    int dots = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n') {
            if (quote) return false;
            dots = 0;
        } else if (quote) {
            if (c == quote) quote = 0;
            if (c == '\\' && quote == '"') ++i;
        } else if (c == '"' || c == '\'') {
            if (text.substr(i, 3) == std::string(3, c)) return false;
            quote = c;
        } else if (c == '#') {
            i = std::min(text.find('\n', i), text.size()) - 1;
        } else if (c == '.' && ++dots > kMaxDotsInLine) {
            return false;
        }
    }
    return true;
}

template <typename T>
Attribute AttributeFor(type_code type, const T& value) {
    Attribute attribute{type, std::string(sizeof(T), '\0')};
    std::memcpy(attribute.bytes.data(), &value, sizeof(T));
    return attribute;
}

Attribute IntegerAttribute(int64 value) {
    return FitsInt32(value) ? AttributeFor(B_INT32_TYPE, static_cast<int32>(value))
                            : AttributeFor(B_INT64_TYPE, value);
}

std::optional<Attribute> RectAttribute(const toml::array& array) {
    std::array<float, 4> edges;
    if (array.size() != edges.size()) return std::nullopt;
    for (size_t i = 0; i < edges.size(); ++i) {
        if (!array[i].is_number()) return std::nullopt;
        edges[i] = static_cast<float>(*array[i].value<double>());
    }
    return AttributeFor(B_RECT_TYPE, edges);
}

// Reads the whole text as hexadecimal digits.
template <typename T>
bool ParseHex(std::string_view digits, T* value) {
    const char* end = digits.data() + digits.size();
    const std::from_chars_result result = std::from_chars(digits.data(), end, *value, 16);
    return result.ec == std::errc() && result.ptr == end;
}

std::optional<type_code> TypeOf(std::string_view text) {
    type_code type = 0;
    if (text.size() == 10 && text.starts_with("0x") && ParseHex(text.substr(2), &type)) return type;
    if (text.size() != 4) return std::nullopt;
    for (const char c : text)
        type = type << 8 | static_cast<uint8>(c);
    return type;
}

// The long form: { type = "LONG", bytes = "4001" }.
std::optional<Attribute> BytesAttribute(const toml::table& table) {
    const auto type_text = table["type"].value<std::string_view>();
    const auto digits = table["bytes"].value<std::string_view>();
    if (table.size() != 2 || !type_text || !digits) return std::nullopt;
    const auto type = TypeOf(*type_text);
    if (!type || digits->size() % 2 != 0) return std::nullopt;
    Attribute attribute{*type, {}, true};
    for (size_t i = 0; i < digits->size(); i += 2) {
        uint8 byte = 0;
        if (!ParseHex(digits->substr(i, 2), &byte)) return std::nullopt;
        attribute.bytes += static_cast<char>(byte);
    }
    return attribute;
}

std::optional<Attribute> AttributeOf(const toml::node& node) {
    if (const auto* integer = node.as_integer()) return IntegerAttribute(integer->get());
    if (const auto* boolean = node.as_boolean()) {
        return AttributeFor(B_BOOL_TYPE, static_cast<uint8>(boolean->get()));
    }
    if (const auto* number = node.as_floating_point()) {
        return AttributeFor(B_DOUBLE_TYPE, number->get());
    }
    if (const auto* text = node.as_string()) return Attribute{B_STRING_TYPE, text->get()};
    if (const auto* array = node.as_array()) return RectAttribute(*array);
    if (const auto* table = node.as_table()) return BytesAttribute(*table);
    return std::nullopt;
}

bool ReadTable(const toml::table& table, AttributeFile::Attributes* attributes,
               std::string* reason) {
    for (const auto& [key, node] : table) {
        std::optional<Attribute> attribute = AttributeOf(node);
        if (!attribute) {
            *reason = Format("line %u: not the value of a setting", node.source().begin.line);
            return false;
        }
        attributes->emplace(key.str(), std::move(*attribute));
    }
    return true;
}

// The number that the attribute's value is, with whatever type; nothing where it is not a number.
std::optional<double> NumberOf(const Attribute& attribute) {
    switch (attribute.type) {
        case B_INT32_TYPE:
            return ValueOf<int32>(attribute.bytes);
        case B_INT64_TYPE:
            if (const auto value = ValueOf<int64>(attribute.bytes)) {
                return static_cast<double>(*value);
            }
            return std::nullopt;
        case B_DOUBLE_TYPE:
            return ValueOf<double>(attribute.bytes);
        default:
            return std::nullopt;
    }
}

// The integer part, or the nearest number that there is.
int32 WholeNumber(double number) {
    using Limits = std::numeric_limits<int32>;
    if (std::isnan(number)) return 0;
    return static_cast<int32>(std::clamp<double>(number, Limits::min(), Limits::max()));
}

}  // namespace

}  // namespace kirto

AttributeFile::Attribute AttributeFile::Attribute::As(type_code wanted) const {
    if (as_bytes || wanted == type) return *this;
    const std::optional<double> number = kirto::NumberOf(*this);
    if (number && wanted == B_DOUBLE_TYPE) return kirto::AttributeFor(wanted, *number);
    if (number && wanted == B_INT32_TYPE) {
        return kirto::AttributeFor(wanted, kirto::WholeNumber(*number));
    }
    return *this;
}

bool AttributeFile::Parse(std::string_view text, Attributes* attributes, std::string* reason) {
    attributes->clear();
    if (!kirto::HasShallowKeys(text)) {
        *reason = "a multi-line string, or a key with too many parts";
        return false;
    }
    if (kirto::AllocationShouldFail()) throw std::bad_alloc();
    try {
        if (kirto::ReadTable(toml::parse(text), attributes, reason)) return true;
    } catch (const toml::parse_error& error) {
        const std::string description(error.description());
        *reason = kirto::Format("line %u: %s", error.source().begin.line, description.c_str());
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        *reason = error.what();
    }
    attributes->clear();
    return false;
}

std::string AttributeFile::Print(const Attributes& attributes) {
    std::string text(kirto::kHeading);
    for (const auto& [name, attribute] : attributes) {
        const std::string value = attribute.as_bytes ? "" : kirto::ShortText(attribute);
        text += kirto::KeyText(name) + " = ";
        text += value.empty() ? kirto::BytesText(attribute) : value;
        text += '\n';
    }
    return text;
}
