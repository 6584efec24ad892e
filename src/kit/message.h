#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"
#include "kit/entry_ref.h"
#include "kit/point.h"
#include "kit/rect.h"

// A command code with named, typed fields; each field holds one or more values of its type. A plain
// value: copied, moved and compared (bit by bit) like one, not shared between threads.
class BMessage {
  public:
    uint32 what = 0;

    BMessage() = default;
    explicit BMessage(uint32 code) : what(code) {}

    // Append a value to the field. B_BAD_TYPE when the field holds another type; B_BAD_VALUE for a
    // path with a zero byte in it and for a message that would nest deeper than 64.
    status_t AddInt32(std::string_view name, int32 value);
    status_t AddInt64(std::string_view name, int64 value);
    status_t AddBool(std::string_view name, bool value);
    status_t AddFloat(std::string_view name, float value);
    status_t AddDouble(std::string_view name, double value);
    status_t AddString(std::string_view name, std::string_view value);
    status_t AddPoint(std::string_view name, BPoint value);
    status_t AddRect(std::string_view name, BRect value);
    status_t AddRef(std::string_view name, const entry_ref& value);
    status_t AddMessage(std::string_view name, const BMessage& value);
    // The pointer travels as a number; whoever reads it knows whether it still lives.
    status_t AddPointer(std::string_view name, const void* value);
    // A value of any type as its bytes, numbers in little-endian order. B_BAD_VALUE for bytes that
    // the type can't have: a number of another size, a message that Unflatten would refuse.
    status_t AddData(std::string_view name, type_code type, const void* data, size_t size);

    // Find value number index of the field. B_NAME_NOT_FOUND without such a field of the type,
    // B_BAD_INDEX past its values; the result is untouched on failure.
    status_t FindInt32(std::string_view name, int32* value, int32 index = 0) const;
    status_t FindInt64(std::string_view name, int64* value, int32 index = 0) const;
    status_t FindBool(std::string_view name, bool* value, int32 index = 0) const;
    status_t FindFloat(std::string_view name, float* value, int32 index = 0) const;
    status_t FindDouble(std::string_view name, double* value, int32 index = 0) const;
    status_t FindString(std::string_view name, std::string* value, int32 index = 0) const;
    status_t FindPoint(std::string_view name, BPoint* value, int32 index = 0) const;
    status_t FindRect(std::string_view name, BRect* value, int32 index = 0) const;
    status_t FindRef(std::string_view name, entry_ref* value, int32 index = 0) const;
    status_t FindMessage(std::string_view name, BMessage* value, int32 index = 0) const;
    status_t FindPointer(std::string_view name, void** value, int32 index = 0) const;
    // The bytes stay the message's and live until it changes.
    status_t FindData(std::string_view name, type_code type, int32 index,
                      std::string_view* bytes) const;

    // Type and number of values of a field; B_NAME_NOT_FOUND without one.
    status_t GetInfo(std::string_view name, type_code* type, int32* count) const;
    // Values in the field; 0 without one.
    int32 CountItems(std::string_view name) const;
    // Number of fields, and the name of the i-th in order of their first Add; no name past them.
    int32 CountNames() const { return static_cast<int32>(fields_.size()); }
    std::string_view NameAt(int32 index) const;
    bool HasField(std::string_view name) const { return CountItems(name) > 0; }

    // Replace value number index; the field and the value must exist with that type, or the status
    // is that of Find. B_BAD_VALUE as for Add.
    status_t ReplaceRect(std::string_view name, BRect value, int32 index = 0);
    status_t ReplaceMessage(std::string_view name, const BMessage& value, int32 index = 0);
    status_t RemoveName(std::string_view name);
    bool IsEmpty() const { return fields_.empty(); }

    // The message as bytes, and back. Numbers are little-endian; a pointer field survives only
    // within one process. Unflatten trusts nothing: damaged bytes, sizes that do not fit and
    // nesting deeper than 64 give B_BAD_DATA and leave the message empty with what 0.
    std::vector<uint8> Flatten() const;
    status_t Unflatten(const uint8* bytes, size_t size);

    friend bool operator==(const BMessage&, const BMessage&) = default;

  private:
    struct Field {
        std::string name;
        type_code type = 0;
        std::vector<std::string> values;  // each value's bytes

        friend bool operator==(const Field&, const Field&) = default;
    };

    const Field* FieldNamed(std::string_view name) const;
    Field* FieldNamed(std::string_view name);
    status_t Append(std::string_view name, type_code type, std::string_view value);
    status_t Replace(std::string_view name, type_code type, int32 index, std::string_view value);
    // Of bytes that have been checked.
    static BMessage FromCheckedBytes(std::span<const uint8> bytes);

    std::vector<Field> fields_;
};
