#pragma once

#include <map>
#include <string>

#include "platform/node.h"

// Typed attributes in one readable TOML file, one attribute a key, in the order of the names:
//
//   global_width = 320                            LONG
//   global_usepause = true                        BOOL
//   global_pauselength = 100.0                    DBLE
//   palette_filename = "/home/ann/colours.gif"    CSTR
//   misc_windowdimensions = [100.0, 80.0, 649.0, 479.0]    RECT
//   odd = { type = "LONG", bytes = "4001" }       any other type, or bytes of another size
//
// Values of an unusual size or type keep their bytes exactly (in memory order, as hexadecimal
// digits). The file is replaced as a whole by Sync(), never rewritten in place. Used by one thread.
class AttributeFile : public BNode {
  public:
    // Reads the file, if there is one; the directory is made when it is missing. A file that is
    // not of this form is renamed to a free name beside it ("NAME.damaged", "NAME.damaged-2", ...)
    // and the attributes start empty.
    explicit AttributeFile(const std::string& path);

    status_t InitCheck() const override { return status_; }
    int64 ReadAttr(std::string_view name, type_code type, void* buffer, size_t size) override;
    // Fails at once where the directory can't be written.
    int64 WriteAttr(std::string_view name, type_code type, const void* buffer,
                    size_t size) override;
    status_t Sync() override;

    // Where a damaged file was put aside; empty when the file was sound.
    const std::string& DamagedCopy() const { return damaged_copy_; }

    // One attribute: its type and its bytes in memory order.
    struct Attribute {
        type_code type = 0;
        std::string bytes;

        friend bool operator==(const Attribute&, const Attribute&) = default;
    };
    using Attributes = std::map<std::string, Attribute, std::less<>>;

    // The file's text to attributes and back. Parse returns false, with the reason, for text that
    // is not of the form above.
    static bool Parse(std::string_view text, Attributes* attributes, std::string* reason);
    static std::string Print(const Attributes& attributes);

  private:
    std::string path_;
    status_t status_ = B_NO_INIT;
    Attributes attributes_;
    bool changed_ = false;
    std::string damaged_copy_;
};
