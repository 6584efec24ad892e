// A message from hostile bytes: refused, or sound enough to be flattened and read again unchanged.
#include <cstdlib>

#include "kit/message.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8* data, size_t size) {
    BMessage message(1);
    if (message.Unflatten(data, size) != B_OK) {
        if (message != BMessage()) std::abort();
        return 0;
    }
    const std::vector<uint8> bytes = message.Flatten();
    BMessage again;
    if (again.Unflatten(bytes.data(), bytes.size()) != B_OK || again != message) std::abort();
    // Everything that a field claims to hold can be found.
    for (int32 i = 0; i < message.CountNames(); ++i) {
        type_code type = 0;
        int32 count = 0;
        message.GetInfo(message.NameAt(i), &type, &count);
        std::string_view value;
        if (message.FindData(message.NameAt(i), type, count - 1, &value) != B_OK) std::abort();
        BMessage inner;
        if (type == B_MESSAGE_TYPE && message.FindMessage(message.NameAt(i), &inner) != B_OK) {
            std::abort();
        }
    }
    return 0;
}
