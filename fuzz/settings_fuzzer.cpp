// Bytes as the text of a settings file: what parses prints and parses again to the same attributes,
// and the settings load from any attributes.
#include <cstdlib>
#include <string>
#include <utility>

#include "kit/attribute_file.h"
#include "settings/prefs.h"

namespace {

// The parsed attributes as a node.
class ParsedNode : public BNode {
  public:
    explicit ParsedNode(AttributeFile::Attributes attributes)
        : attributes_(std::move(attributes)) {}

    status_t InitCheck() const override { return B_OK; }
    int64 ReadAttr(std::string_view name, type_code, void* buffer, size_t size) override {
        const auto found = attributes_.find(name);
        if (found == attributes_.end()) return B_ENTRY_NOT_FOUND;
        return static_cast<int64>(found->second.bytes.copy(static_cast<char*>(buffer), size));
    }
    int64 WriteAttr(std::string_view name, type_code type, const void* buffer,
                    size_t size) override {
        attributes_[std::string(name)] = {type, {static_cast<const char*>(buffer), size}};
        return static_cast<int64>(size);
    }
    status_t Sync() override { return B_OK; }

  private:
    AttributeFile::Attributes attributes_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8* data, size_t size) {
    AttributeFile::Attributes attributes;
    AttributeFile::Attributes again;
    std::string reason;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (!AttributeFile::Parse(text, &attributes, &reason)) return 0;
    const std::string printed = AttributeFile::Print(attributes);
    if (!AttributeFile::Parse(printed, &again, &reason) || again != attributes) std::abort();

    ParsedNode node(attributes);
    const Prefs prefs(node);
    if (prefs.failed || prefs.palette_filename.size() > 255) std::abort();
    return 0;
}
