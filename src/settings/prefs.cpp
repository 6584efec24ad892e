#include "settings/prefs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <iterator>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "base/debug_line.h"
#include "base/directories.h"
#include "base/number.h"
#include "base/text.h"
#include "kit/attribute_file.h"

namespace {

// Of a stored string; what follows is not read.
constexpr size_t kMaxStringBytes = 255;

using Member = std::variant<int32 Prefs::*, bool Prefs::*, double Prefs::*, std::string Prefs::*,
                            BRect Prefs::*>;

struct Setting {
    const char* key;
    Member member;
    // Left out of a file that lacks it as long as it has its built-in value: files of those who
    // never touch it stay as they are.
    bool optional = false;
};

// Every setting, in the order of reading and writing.
constexpr Setting kSettings[] = {
    {"global_width", &Prefs::global_width},
    {"global_height", &Prefs::global_height},
    {"global_usepause", &Prefs::global_usepause},
    {"global_useloop", &Prefs::global_useloop},
    {"global_pauselength", &Prefs::global_pauselength},
    {"global_loopcount", &Prefs::global_loopcount},
    {"global_setdimensions", &Prefs::global_setdimensions},
    {"global_pauseinseconds", &Prefs::global_pauseinseconds},
    {"palette_mapping", &Prefs::palette_mapping},
    {"palette_filename", &Prefs::palette_filename},
    {"palette_usetransparent", &Prefs::palette_usetransparent},
    {"palette_transparentindex", &Prefs::palette_transparentindex},
    {"palette_backgroundindex", &Prefs::palette_backgroundindex},
    {"palette_dither", &Prefs::palette_dither},
    {"thumbnail_height", &Prefs::thumbnail_height},
    {"thumbnail_heightvalue", &Prefs::thumbnail_heightvalue},
    {"thumbnail_maxheight", &Prefs::thumbnail_maxheight},
    {"thumbnail_minheight", &Prefs::thumbnail_minheight},
    {"thumbnail_drawtransparent", &Prefs::thumbnail_drawtransparent},
    {"animation_gifdisposal", &Prefs::animation_gifdisposal},
    {"animation_gifinterlaced", &Prefs::animation_gifinterlaced},
    {"animation_gifcomment", &Prefs::animation_gifcomment},
    {"animation_gifloadfullframe", &Prefs::animation_gifloadfullframe},
    {"misc_savewindowdimensions", &Prefs::misc_savewindowdimensions},
    {"misc_windowdimensions", &Prefs::misc_windowdimensions},
    {"misc_tempfilelocation", &Prefs::misc_tempfilelocation},
    {"misc_preferredmode", &Prefs::misc_preferredmode},
    {"animation_faithful", &Prefs::animation_faithful, true},
    {"animation_dithering", &Prefs::animation_dithering, true},
    {"animation_jointcolors", &Prefs::animation_jointcolors, true},
    {"animation_matte", &Prefs::animation_matte, true},
    {"animation_threshold", &Prefs::animation_threshold, true},
    {"animation_exactcolors", &Prefs::animation_exactcolors, true},
};

// Calls action(setting, member pointer) for each setting in order, until one returns false; false
// then.
template <typename Action>
bool ForEachMember(const Action& action) {
    return std::all_of(std::begin(kSettings), std::end(kSettings), [&](const Setting& setting) {
        return std::visit([&](auto member) { return action(setting, member); }, setting.member);
    });
}

// How a type is called in the names of its helpers, and its type code.
template <typename T>
struct Kind;
template <>
struct Kind<int32> {
    static constexpr const char* kName = "Int";
    static constexpr type_code kType = B_INT32_TYPE;
};
template <>
struct Kind<bool> {
    static constexpr const char* kName = "Bool";
    static constexpr type_code kType = B_BOOL_TYPE;
};
template <>
struct Kind<double> {
    static constexpr const char* kName = "Double";
    static constexpr type_code kType = B_DOUBLE_TYPE;
};
template <>
struct Kind<std::string> {
    static constexpr const char* kName = "String";
    static constexpr type_code kType = B_STRING_TYPE;
};
template <>
struct Kind<BRect> {
    static constexpr const char* kName = "Rect";
    static constexpr type_code kType = B_RECT_TYPE;
};

// Each reads what is stored over the value's bytes: fewer stored bytes leave the rest as it was.
// They return what ReadAttr returns.
template <typename T>
int64 ReadValue(BNode& node, const char* key, T* value) {
    static_assert(std::is_trivially_copyable_v<T>);
    std::array<uint8, sizeof(T)> bytes;
    std::memcpy(bytes.data(), value, bytes.size());
    const int64 read = node.ReadAttr(key, Kind<T>::kType, bytes.data(), bytes.size());
    if (read >= 0) std::memcpy(value, bytes.data(), bytes.size());
    return read;
}

// By way of a byte: a bool must never hold another pattern than 0 or 1.
int64 ReadValue(BNode& node, const char* key, bool* value) {
    uint8 byte = *value;
    const int64 read = node.ReadAttr(key, Kind<bool>::kType, &byte, sizeof(byte));
    if (read >= 0) *value = byte != 0;
    return read;
}

void AddField(BMessage* message, const char* key, int32 value) {
    message->AddInt32(key, value);
}
void AddField(BMessage* message, const char* key, bool value) {
    message->AddBool(key, value);
}
void AddField(BMessage* message, const char* key, double value) {
    message->AddDouble(key, value);
}
void AddField(BMessage* message, const char* key, const std::string& value) {
    message->AddString(key, value);
}
void AddField(BMessage* message, const char* key, const BRect& value) {
    message->AddRect(key, value);
}

void FindField(const BMessage& message, const char* key, int32* value) {
    message.FindInt32(key, value);
}
void FindField(const BMessage& message, const char* key, bool* value) {
    message.FindBool(key, value);
}
void FindField(const BMessage& message, const char* key, double* value) {
    message.FindDouble(key, value);
}
void FindField(const BMessage& message, const char* key, std::string* value) {
    message.FindString(key, value);
}
void FindField(const BMessage& message, const char* key, BRect* value) {
    message.FindRect(key, value);
}

// The string ends after the bytes read, or at the first zero byte among them.
int64 ReadValue(BNode& node, const char* key, std::string* value) {
    std::array<char, kMaxStringBytes + 1> text = {};
    const int64 read = node.ReadAttr(key, Kind<std::string>::kType, text.data(), kMaxStringBytes);
    if (read >= 0) *value = text.data();
    return read;
}

// Whether the node has the attribute, of the value's type.
template <typename T>
bool Has(BNode& node, const char* key, T value) {
    return ReadValue(node, key, &value) != B_ENTRY_NOT_FOUND;
}

template <typename T>
bool WriteValue(BNode& node, const char* key, const T& value) {
    return node.WriteAttr(key, Kind<T>::kType, &value, sizeof(value)) ==
           static_cast<int64>(sizeof(value));
}

bool WriteValue(BNode& node, const char* key, const std::string& value) {
    return node.WriteAttr(key, Kind<std::string>::kType, value.data(), value.size()) ==
           static_cast<int64>(value.size());
}

// Each sets the value from the text and returns null, or returns what the text is not.
const char* ParseValue(std::string_view text, int32* value) {
    return kirto::ParseNumber(text, value) ? nullptr : "is not a whole number";
}

const char* ParseValue(std::string_view text, bool* value) {
    if (text != "true" && text != "false") return "is neither true nor false";
    *value = text == "true";
    return nullptr;
}

const char* ParseValue(std::string_view text, double* value) {
    double number = 0;
    if (!kirto::ParseNumber(text, &number) || !std::isfinite(number)) return "is not a number";
    *value = number;
    return nullptr;
}

const char* ParseValue(std::string_view text, std::string* value) {
    *value = text;
    return nullptr;
}

const char* ParseValue(std::string_view text, BRect* value) {
    constexpr const char* kReason = "is not a rectangle of the form left,top,right,bottom";
    BRect rect;
    float* const edges[] = {&rect.left, &rect.top, &rect.right, &rect.bottom};
    for (float* edge : edges) {
        const bool last = edge == &rect.bottom;
        const size_t comma = text.find(',');
        if (last != (comma == std::string_view::npos)) return kReason;
        if (!kirto::ParseNumber(text.substr(0, comma), edge) || !std::isfinite(*edge))
            return kReason;
        if (!last) text.remove_prefix(comma + 1);
    }
    *value = rect;
    return nullptr;
}

}  // namespace

Prefs::Prefs(BuiltIn) : misc_tempfilelocation(kirto::HomeDirectory()) {}

Prefs::Prefs() : Prefs(BuiltIn{}) {
    AttributeFile file(SettingsPath());
    damaged_copy = file.DamagedCopy();
    Load(file);
}

Prefs::Prefs(BNode& node) : Prefs(BuiltIn{}) {
    Load(node);
}

void Prefs::Load(BNode& node) {
    Prefs defaults{BuiltIn{}};
    if (!defaults.misc_tempfilelocation.ends_with('/')) defaults.misc_tempfilelocation += '/';
    const bool complete = ForEachMember([&](const Setting& setting, auto member) {
        const auto* written_back = setting.optional ? nullptr : &(defaults.*member);
        return Get(node, setting.key, &(this->*member), written_back);
    });
    SyncWrites(node, complete);
}

void Prefs::Save(const BRect& window_frame) {
    AttributeFile file(SettingsPath());
    if (!file.DamagedCopy().empty()) damaged_copy = file.DamagedCopy();
    Save(file, window_frame);
}

void Prefs::Save(BNode& node, const BRect& window_frame) {
    Prefs values(*this);
    values.misc_windowdimensions = window_frame;
    const Prefs built_in{BuiltIn{}};
    const bool complete = ForEachMember([&](const Setting& setting, auto member) {
        const bool usual = setting.optional && values.*member == built_in.*member;
        if (usual && !Has(node, setting.key, values.*member)) return true;
        return Write(node, "Put", setting.key, values.*member);
    });
    SyncWrites(node, complete);
}

void Prefs::SyncWrites(BNode& node, bool complete) {
    const std::string last_write = std::exchange(unsynced_write_, {});
    if (last_write.empty() || node.Sync() == B_OK) return;
    if (complete) kirto::DebugLine("%s", last_write.c_str());
    failed = true;
}

template <typename T>
bool Prefs::Get(BNode& node, const char* key, T* value, const T* default_value) {
    const int64 read = ReadValue(node, key, value);
    if (read >= 0) return true;
    if (read == B_ENTRY_NOT_FOUND) {
        if (!default_value) return true;
        *value = *default_value;
        return Write(node, "Get", key, *value);
    }
    if constexpr (std::is_same_v<T, std::string> || std::is_same_v<T, BRect>) {
        const std::string reason = kirto::StatusText(static_cast<status_t>(read));
        kirto::DebugLine("Prefs::Get%s() - Unknown error reading %s:\n%s\n", Kind<T>::kName, key,
                         reason.c_str());
    } else {
        kirto::DebugLine("Prefs::Get%s() - Unknown error reading %s\n", Kind<T>::kName, key);
    }
    failed = true;
    return false;
}

template <typename T>
bool Prefs::Write(BNode& node, const char* verb, const char* key, const T& value) {
    const std::string failure =
        kirto::Format("Prefs::%s%s() - WriteAttr on %s died\n", verb, Kind<T>::kName, key);
    if (WriteValue(node, key, value)) {
        unsynced_write_ = failure;
        return true;
    }
    kirto::DebugLine("%s", failure.c_str());
    failed = true;
    return false;
}

void Prefs::AddTo(BMessage* message) const {
    ForEachMember([&](const Setting& setting, auto member) {
        AddField(message, setting.key, this->*member);
        return true;
    });
}

void Prefs::TakeFrom(const BMessage& message) {
    ForEachMember([&](const Setting& setting, auto member) {
        FindField(message, setting.key, &(this->*member));
        return true;
    });
}

bool Prefs::SetFromText(const std::string& key, const std::string& text, std::string* reason) {
    for (const Setting& setting : kSettings) {
        if (key != setting.key) continue;
        const char* const fault = std::visit(
            [&](auto member) { return ParseValue(text, &(this->*member)); }, setting.member);
        if (fault) {
            *reason = key;
            reason->append(": \"").append(text).append("\" ").append(fault).append(".");
        }
        return !fault;
    }
    *reason = "There is no setting named \"" + key + "\".";
    return false;
}

bool Prefs::GetInt(BNode& node, const char* key, int32* value, const int32* default_value) {
    return Get(node, key, value, default_value);
}

bool Prefs::GetBool(BNode& node, const char* key, bool* value, const bool* default_value) {
    return Get(node, key, value, default_value);
}

bool Prefs::GetDouble(BNode& node, const char* key, double* value, const double* default_value) {
    return Get(node, key, value, default_value);
}

bool Prefs::GetString(BNode& node, const char* key, std::string* value,
                      const std::string* default_value) {
    return Get(node, key, value, default_value);
}

bool Prefs::GetRect(BNode& node, const char* key, BRect* value, const BRect* default_value) {
    return Get(node, key, value, default_value);
}

bool Prefs::PutInt(BNode& node, const char* key, const int32* value) {
    return Write(node, "Put", key, *value);
}

bool Prefs::PutBool(BNode& node, const char* key, const bool* value) {
    return Write(node, "Put", key, *value);
}

bool Prefs::PutDouble(BNode& node, const char* key, const double* value) {
    return Write(node, "Put", key, *value);
}

bool Prefs::PutString(BNode& node, const char* key, const std::string* value) {
    return Write(node, "Put", key, *value);
}

bool Prefs::PutRect(BNode& node, const char* key, const BRect* value) {
    return Write(node, "Put", key, *value);
}

std::string Prefs::SettingsPath() {
    return kirto::SettingsDirectory() + "/Kirto_settings";
}
