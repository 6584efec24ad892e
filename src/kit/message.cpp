// A flattened message, all numbers unsigned 32-bit little-endian:
//
//   "KMSG"  what  number of fields
//   for each field: type  length of the name  number of values (1 or more)  the name
//       for each value: length  the value's bytes
//
// No two fields have the same name, and nothing follows the last field. The bytes of a value by its
// type: LONG 4, LLNG 8, BOOL 1 (false is 0), FLOT 4 and DBLE 8 (IEEE 754), BPNT x and y, RECT left,
// top, right and bottom (4-byte floats), PNTR 8, CSTR the text without a closing zero, RREF the
// path (no zero byte in it), MSGG a flattened message; any other type, any bytes.
#include "kit/message.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <optional>
#include <set>
#include <span>
#include <utility>

#include "base/byte_order.h"
#include "base/byte_reader.h"

namespace {

using Bytes = std::span<const uint8>;

constexpr std::string_view kMagic = "KMSG";
constexpr int kMaxNesting = 64;

Bytes BytesOf(std::string_view text) {
    return {reinterpret_cast<const uint8*>(text.data()), text.size()};
}

std::string_view TextOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

template <typename Unsigned>
Unsigned GetLittle(std::string_view bytes) {
    Unsigned value = 0;
    for (size_t i = sizeof(value); i-- > 0;) {
        value = static_cast<Unsigned>(value << 8 | static_cast<uint8>(bytes[i]));
    }
    return value;
}

template <typename Unsigned>
std::string LittleBytes(Unsigned value) {
    std::string bytes;
    kirto::AppendLittle(&bytes, value);
    return bytes;
}

std::string FloatBytes(std::initializer_list<float> values) {
    std::string bytes;
    for (const float value : values)
        kirto::AppendLittle(&bytes, std::bit_cast<uint32>(value));
    return bytes;
}

float FloatAt(std::string_view bytes, size_t index) {
    return std::bit_cast<float>(GetLittle<uint32>(bytes.substr(index * 4)));
}

// The size that every value of the type has; nothing for types of any size.
std::optional<size_t> FixedSize(type_code type) {
    switch (type) {
        case B_BOOL_TYPE:
            return 1;
        case B_INT32_TYPE:
        case B_FLOAT_TYPE:
            return 4;
        case B_INT64_TYPE:
        case B_DOUBLE_TYPE:
        case B_POINT_TYPE:
        case B_POINTER_TYPE:
            return 8;
        case B_RECT_TYPE:
            return 16;
        default:
            return std::nullopt;
    }
}

bool IsValue(type_code type, Bytes bytes, int depth);

// Checks one field and adds its name to those seen.
bool SkipField(kirto::ByteReader& reader, int depth, std::set<std::string_view>* names) {
    const type_code type = reader.U32();
    const uint32 name_length = reader.U32();
    const uint32 count = reader.U32();
    const std::string_view name = TextOf(reader.Bytes(name_length));
    if (reader.Overrun() || count == 0 || !names->insert(name).second) return false;
    for (uint32 i = 0; i < count; ++i) {
        const Bytes value = reader.Bytes(reader.U32());
        if (reader.Overrun() || !IsValue(type, value, depth)) return false;
    }
    return true;
}

// True for the bytes of a whole flattened message, at most kMaxNesting - depth messages deep.
bool IsMessage(Bytes bytes, int depth) {
    kirto::ByteReader reader(bytes);
    if (depth > kMaxNesting || TextOf(reader.Bytes(kMagic.size())) != kMagic) return false;
    reader.U32();  // any command code will do
    const uint32 field_count = reader.U32();
    std::set<std::string_view> names;
    for (uint32 i = 0; i < field_count; ++i) {
        if (!SkipField(reader, depth, &names)) return false;
    }
    return !reader.Overrun() && reader.Left() == 0;
}

// True for bytes that a value of the type can have in a message at that depth.
bool IsValue(type_code type, Bytes bytes, int depth) {
    if (bytes.size() > std::numeric_limits<uint32>::max()) return false;
    if (type == B_MESSAGE_TYPE) return IsMessage(bytes, depth + 1);
    if (type == B_REF_TYPE) return !std::count(bytes.begin(), bytes.end(), 0);
    return bytes.size() == FixedSize(type).value_or(bytes.size());
}

}  // namespace

status_t BMessage::AddInt32(std::string_view name, int32 value) {
    return Append(name, B_INT32_TYPE, LittleBytes(static_cast<uint32>(value)));
}

status_t BMessage::AddInt64(std::string_view name, int64 value) {
    return Append(name, B_INT64_TYPE, LittleBytes(static_cast<uint64>(value)));
}

status_t BMessage::AddBool(std::string_view name, bool value) {
    return Append(name, B_BOOL_TYPE, LittleBytes(static_cast<uint8>(value)));
}

status_t BMessage::AddFloat(std::string_view name, float value) {
    return Append(name, B_FLOAT_TYPE, FloatBytes({value}));
}

status_t BMessage::AddDouble(std::string_view name, double value) {
    return Append(name, B_DOUBLE_TYPE, LittleBytes(std::bit_cast<uint64>(value)));
}

status_t BMessage::AddString(std::string_view name, std::string_view value) {
    return Append(name, B_STRING_TYPE, value);
}

status_t BMessage::AddPoint(std::string_view name, BPoint value) {
    return Append(name, B_POINT_TYPE, FloatBytes({value.x, value.y}));
}

status_t BMessage::AddRect(std::string_view name, BRect value) {
    return Append(name, B_RECT_TYPE,
                  FloatBytes({value.left, value.top, value.right, value.bottom}));
}

status_t BMessage::AddRef(std::string_view name, const entry_ref& value) {
    return Append(name, B_REF_TYPE, value.path);
}

status_t BMessage::AddMessage(std::string_view name, const BMessage& value) {
    const std::vector<uint8> bytes = value.Flatten();
    return Append(name, B_MESSAGE_TYPE, TextOf(bytes));
}

status_t BMessage::AddPointer(std::string_view name, const void* value) {
    const uint64 number = reinterpret_cast<std::uintptr_t>(value);
    return Append(name, B_POINTER_TYPE, LittleBytes(number));
}

status_t BMessage::AddData(std::string_view name, type_code type, const void* data, size_t size) {
    if (!data && size > 0) return B_BAD_VALUE;
    return Append(name, type, {static_cast<const char*>(data), size});
}

status_t BMessage::Append(std::string_view name, type_code type, std::string_view value) {
    if (!IsValue(type, BytesOf(value), 0)) return B_BAD_VALUE;
    Field* field = FieldNamed(name);
    if (!field) {
        fields_.push_back({std::string(name), type, {std::string(value)}});
        return B_OK;
    }
    if (field->type != type) return B_BAD_TYPE;
    field->values.emplace_back(value);
    return B_OK;
}

status_t BMessage::FindInt32(std::string_view name, int32* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_INT32_TYPE, index, &bytes);
    if (status == B_OK) *value = static_cast<int32>(GetLittle<uint32>(bytes));
    return status;
}

status_t BMessage::FindInt64(std::string_view name, int64* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_INT64_TYPE, index, &bytes);
    if (status == B_OK) *value = static_cast<int64>(GetLittle<uint64>(bytes));
    return status;
}

status_t BMessage::FindBool(std::string_view name, bool* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_BOOL_TYPE, index, &bytes);
    if (status == B_OK) *value = bytes[0] != 0;
    return status;
}

status_t BMessage::FindFloat(std::string_view name, float* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_FLOAT_TYPE, index, &bytes);
    if (status == B_OK) *value = FloatAt(bytes, 0);
    return status;
}

status_t BMessage::FindDouble(std::string_view name, double* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_DOUBLE_TYPE, index, &bytes);
    if (status == B_OK) *value = std::bit_cast<double>(GetLittle<uint64>(bytes));
    return status;
}

status_t BMessage::FindString(std::string_view name, std::string* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_STRING_TYPE, index, &bytes);
    if (status == B_OK) *value = bytes;
    return status;
}

status_t BMessage::FindPoint(std::string_view name, BPoint* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_POINT_TYPE, index, &bytes);
    if (status == B_OK) *value = BPoint(FloatAt(bytes, 0), FloatAt(bytes, 1));
    return status;
}

status_t BMessage::FindRect(std::string_view name, BRect* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_RECT_TYPE, index, &bytes);
    if (status == B_OK) {
        *value = BRect(FloatAt(bytes, 0), FloatAt(bytes, 1), FloatAt(bytes, 2), FloatAt(bytes, 3));
    }
    return status;
}

status_t BMessage::FindRef(std::string_view name, entry_ref* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_REF_TYPE, index, &bytes);
    if (status == B_OK) value->path = bytes;
    return status;
}

status_t BMessage::FindMessage(std::string_view name, BMessage* value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_MESSAGE_TYPE, index, &bytes);
    return status == B_OK ? value->Unflatten(BytesOf(bytes).data(), bytes.size()) : status;
}

status_t BMessage::FindPointer(std::string_view name, void** value, int32 index) const {
    std::string_view bytes;
    const status_t status = FindData(name, B_POINTER_TYPE, index, &bytes);
    if (status == B_OK) {
        const auto number = static_cast<std::uintptr_t>(GetLittle<uint64>(bytes));
        *value = reinterpret_cast<void*>(number);
    }
    return status;
}

status_t BMessage::FindData(std::string_view name, type_code type, int32 index,
                            std::string_view* bytes) const {
    const Field* field = FieldNamed(name);
    if (!field || field->type != type) return B_NAME_NOT_FOUND;
    if (index < 0 || static_cast<size_t>(index) >= field->values.size()) return B_BAD_INDEX;
    *bytes = field->values[static_cast<size_t>(index)];
    return B_OK;
}

status_t BMessage::GetInfo(std::string_view name, type_code* type, int32* count) const {
    const Field* field = FieldNamed(name);
    if (!field) return B_NAME_NOT_FOUND;
    *type = field->type;
    *count = static_cast<int32>(field->values.size());
    return B_OK;
}

int32 BMessage::CountItems(std::string_view name) const {
    const Field* field = FieldNamed(name);
    return field ? static_cast<int32>(field->values.size()) : 0;
}

std::string_view BMessage::NameAt(int32 index) const {
    if (index < 0 || index >= CountNames()) return {};
    return fields_[static_cast<size_t>(index)].name;
}

const BMessage::Field* BMessage::FieldNamed(std::string_view name) const {
    for (const Field& field : fields_) {
        if (field.name == name) return &field;
    }
    return nullptr;
}

BMessage::Field* BMessage::FieldNamed(std::string_view name) {
    return const_cast<Field*>(std::as_const(*this).FieldNamed(name));
}

status_t BMessage::ReplaceRect(std::string_view name, BRect value, int32 index) {
    return Replace(name, B_RECT_TYPE, index,
                   FloatBytes({value.left, value.top, value.right, value.bottom}));
}

status_t BMessage::ReplaceMessage(std::string_view name, const BMessage& value, int32 index) {
    const std::vector<uint8> bytes = value.Flatten();
    return Replace(name, B_MESSAGE_TYPE, index, TextOf(bytes));
}

status_t BMessage::Replace(std::string_view name, type_code type, int32 index,
                           std::string_view value) {
    std::string_view present;
    const status_t status = FindData(name, type, index, &present);
    if (status != B_OK) return status;
    if (!IsValue(type, BytesOf(value), 0)) return B_BAD_VALUE;
    FieldNamed(name)->values[static_cast<size_t>(index)] = value;
    return B_OK;
}

status_t BMessage::RemoveName(std::string_view name) {
    const Field* field = FieldNamed(name);
    if (!field) return B_NAME_NOT_FOUND;
    fields_.erase(fields_.begin() + (field - fields_.data()));
    return B_OK;
}

std::vector<uint8> BMessage::Flatten() const {
    const auto length = [](const auto& items) { return static_cast<uint32>(items.size()); };
    std::string bytes(kMagic);
    kirto::AppendLittle(&bytes, what);
    kirto::AppendLittle(&bytes, length(fields_));
    for (const Field& field : fields_) {
        kirto::AppendLittle(&bytes, field.type);
        kirto::AppendLittle(&bytes, length(field.name));
        kirto::AppendLittle(&bytes, length(field.values));
        bytes += field.name;
        for (const std::string& value : field.values) {
            kirto::AppendLittle(&bytes, length(value));
            bytes += value;
        }
    }
    const Bytes span = BytesOf(bytes);
    return {span.begin(), span.end()};
}

status_t BMessage::Unflatten(const uint8* bytes, size_t size) {
    const bool sound = IsMessage({bytes, size}, 0);
    *this = sound ? FromCheckedBytes({bytes, size}) : BMessage();
    return sound ? B_OK : B_BAD_DATA;
}

BMessage BMessage::FromCheckedBytes(std::span<const uint8> bytes) {
    BMessage message;
    kirto::ByteReader reader(bytes);
    reader.Bytes(kMagic.size());
    message.what = reader.U32();
    const uint32 field_count = reader.U32();
    for (uint32 i = 0; i < field_count; ++i) {
        Field& field = message.fields_.emplace_back();
        field.type = reader.U32();
        const uint32 name_length = reader.U32();
        const uint32 value_count = reader.U32();
        field.name = TextOf(reader.Bytes(name_length));
        for (uint32 value = 0; value < value_count; ++value) {
            field.values.emplace_back(TextOf(reader.Bytes(reader.U32())));
        }
    }
    return message;
}
