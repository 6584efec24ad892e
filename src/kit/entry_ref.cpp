#include "kit/entry_ref.h"

#include <string_view>

#include "base/text.h"

using kirto::WithoutClosingSlashes;

std::string entry_ref::Leaf() const {
    const std::string_view entry = WithoutClosingSlashes(path);
    return std::string(entry.substr(entry.rfind('/') + 1));
}

std::string entry_ref::Directory() const {
    const std::string_view entry = WithoutClosingSlashes(path);
    const size_t slash = entry.rfind('/');
    if (slash == std::string_view::npos) return ".";
    return std::string(WithoutClosingSlashes(entry.substr(0, slash + 1)));
}
