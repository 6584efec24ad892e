#include "main/rsrc/resource_compiler.h"

#include <limits>
#include <utility>

#include "base/byte_order.h"
#include "base/text.h"
#include "kit/file.h"
#include "kit/message.h"
#include "main/rsrc/text_icon.h"
#include "resources/resources.h"
#include "resources/window_layout.h"

namespace kirto {

namespace {

constexpr int64 kMaxSourceSize = int64{1} << 20;
constexpr int32 kIconId = 101;

// A version record: five numbers and two texts with a terminating zero.
constexpr size_t kVersionShort = 64;
constexpr size_t kVersionLong = 256;
constexpr size_t kVersionRecord = size_t{5} * 4 + kVersionShort + kVersionLong;

// The text, filled up with zeros.
void PutText(std::vector<uint8>* bytes, const std::string& text, size_t size) {
    bytes->insert(bytes->end(), text.begin(), text.end());
    bytes->resize(bytes->size() + size - text.size());
}

}  // namespace

ResourceCompiler::ResourceCompiler(const std::string& manifest)
    : manifest_(manifest), folder_(std::filesystem::path(manifest).parent_path()) {
    if (Compile()) container_ = writer_.Container();
}

bool ResourceCompiler::Compile() {
    std::string text;
    if (!ReadFile(manifest_, &text)) return false;
    try {
        values_ = toml::parse(text);
    } catch (const toml::parse_error& error) {
        return Fail(Format("%s:%u: %s", manifest_.c_str(), error.source().begin.line,
                           std::string(error.description()).c_str()));
    }
    return AddWindows() && AddIcon("icons.large", kLargeIconType, "BEOS:L:STD_ICON", 32) &&
           AddIcon("icons.mini", kMiniIconType, "BEOS:M:STD_ICON", 16) && AddFileTypes() &&
           AddMimeString("signature", 1, "BEOS:APP_SIG") && AddMimeString("type", 2, "BEOS:TYPE") &&
           AddVersion() && AddFlags();
}

// Windows are found by name; their ids count from 0.
bool ResourceCompiler::AddWindows() {
    const toml::table* windows = values_["windows"].as_table();
    if (!windows) return Fail(manifest_ + ": no table \"windows\"");
    int32 id = 0;
    for (const auto& [window, value] : *windows) {
        const std::string name(window.str());
        const auto file = value.value_exact<std::string>();
        if (!file) return Fail(manifest_ + ": no file for the window \"" + name + '"');
        BMessage archive;
        std::string error;
        if (!CompileWindowLayout(PathOf(*file), &archive, &error)) return Fail(error);
        if (!Add(kWindowArchiveType, id++, name, archive.Flatten())) return false;
    }
    return true;
}

bool ResourceCompiler::AddIcon(std::string_view key, type_code type, std::string_view name,
                               int32 side) {
    std::string file;
    std::string text;
    if (!FindText(key, &file) || !ReadFile(PathOf(file), &text)) return false;
    std::string error;
    std::optional<std::vector<uint8>> pixels = ReadTextIcon(text, side, &error);
    if (!pixels) return Fail(PathOf(file) + ": " + error);
    return Add(type, kIconId, name, std::move(*pixels));
}

bool ResourceCompiler::AddFileTypes() {
    const toml::array* types = values_["file_types"].as_array();
    if (!types) return Fail(manifest_ + ": no array \"file_types\"");
    BMessage message;
    for (const toml::node& type : *types) {
        const auto text = type.value_exact<std::string>();
        if (!text) return Fail(manifest_ + ": \"file_types\" may hold strings only");
        message.AddString("types", *text);
    }
    return Add(B_MESSAGE_TYPE, 1, "BEOS:FILE_TYPES", message.Flatten());
}

// With its terminating zero.
bool ResourceCompiler::AddMimeString(std::string_view key, int32 id, std::string_view name) {
    std::string text;
    if (!FindText(key, &text)) return false;
    std::vector<uint8> bytes;
    PutText(&bytes, text, text.size() + 1);
    return Add(kMimeStringType, id, name, std::move(bytes));
}

// The program's record, and an empty one: the program is part of no system.
bool ResourceCompiler::AddVersion() {
    std::vector<uint8> bytes;
    for (const char* key : {"major", "middle", "minor", "variety", "internal"}) {
        uint32 number = 0;
        if (!FindNumber(std::string("version.") + key, &number)) return false;
        AppendLittle(&bytes, number);
    }
    std::string short_text;
    std::string long_text;
    if (!FindText("version.short", &short_text)) return false;
    if (!FindText("version.long", &long_text)) return false;
    if (short_text.size() >= kVersionShort || long_text.size() >= kVersionLong) {
        return Fail(manifest_ + ": a text of \"version\" is too long");
    }
    PutText(&bytes, short_text, kVersionShort);
    PutText(&bytes, long_text, kVersionLong);
    bytes.resize(2 * kVersionRecord);
    return Add(kVersionType, 1, "BEOS:APP_VERSION", std::move(bytes));
}

bool ResourceCompiler::AddFlags() {
    uint32 flags = 0;
    if (!FindNumber("flags", &flags)) return false;
    std::vector<uint8> bytes;
    AppendLittle(&bytes, flags);
    return Add(kFlagsType, 1, "BEOS:APP_FLAGS", std::move(bytes));
}

bool ResourceCompiler::Add(type_code type, int32 id, std::string_view name,
                           std::vector<uint8> bytes) {
    if (writer_.Add(type, id, name, std::move(bytes)) == B_OK) return true;
    return Fail(manifest_ + ": \"" + std::string(name) + "\" is not a valid resource name");
}

bool ResourceCompiler::FindText(std::string_view key, std::string* text) {
    const auto value = values_.at_path(key).value_exact<std::string>();
    if (!value) return Fail(manifest_ + ": no string \"" + std::string(key) + '"');
    *text = *value;
    return true;
}

bool ResourceCompiler::FindNumber(std::string_view key, uint32* number) {
    const auto value = values_.at_path(key).value_exact<int64>();
    if (!value || *value < 0 || *value > std::numeric_limits<uint32>::max()) {
        return Fail(manifest_ + ": no 32-bit number \"" + std::string(key) + '"');
    }
    *number = static_cast<uint32>(*value);
    return true;
}

bool ResourceCompiler::ReadFile(const std::string& path, std::string* text) {
    BFile file(path, B_READ_ONLY);
    if (file.InitCheck() == B_OK && file.Size() <= kMaxSourceSize) {
        text->resize(static_cast<size_t>(file.Size()));
        if (file.ReadExactly(text->data(), text->size())) return true;
    }
    return Fail(path + ": can't be read");
}

bool ResourceCompiler::Fail(const std::string& error) {
    error_ = error;
    return false;
}

}  // namespace kirto
