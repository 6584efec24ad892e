#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "kit/node.h"

// Typed attributes in one readable TOML file, one attribute a line, in the byte order of the names,
// below a comment that tells what the file is:
//
//   global_pauselength = 100.0                             DBLE
//   global_usepause = true                                 BOOL
//   global_width = 320                                     LONG, or LLNG when 32 bits are too few
//   misc_windowdimensions = [100.0, 80.0, 649.0, 479.0]    RECT
//   odd = { type = "LONG", bytes = "4001" }                any other type or size
//   palette_filename = "/home/ann/colors.gif"             CSTR
//
// Every attribute is kept exactly: what the short forms can't carry (an unusual type or size, a
// string that is no UTF-8, a truth value above 1) stands as its bytes, in memory order, as
// hexadecimal digits; and bytes stay bytes. The file is replaced as a whole by Sync(), never
// rewritten in place; a symbolic link to it stays one. Used by one thread.
class AttributeFile : public BNode {
  public:
    // Reads the file, if there is one; its directory is made (for the user only) when it is
    // missing. A file that is not of this form, or larger than 1 MiB, is renamed to a free name
    // beside it ("NAME.damaged", "NAME.damaged-2", ...), a debug line says why, and the attributes
    // start empty. InitCheck() fails for a file that can't be read, put aside or made, and where
    // memory is short: the file stays as it is then.
    explicit AttributeFile(const std::string& path);

    status_t InitCheck() const override { return status_; }
    // A number of the short form is converted to the type asked for, so that people may write 5 for
    // 5.0 and the other way round; what stands as bytes is taken as it is, whatever its type.
    int64 ReadAttr(std::string_view name, type_code type, void* buffer, size_t size) override;
    // Kept in memory until Sync(). Fails at once where the file can't be replaced; B_BAD_VALUE for
    // a name that is no UTF-8.
    int64 WriteAttr(std::string_view name, type_code type, const void* buffer,
                    size_t size) override;
    // B_BAD_VALUE for attributes that make a file of more than 1 MiB; nothing is written then.
    status_t Sync() override;

    // Where a damaged file was put aside; empty when the file was sound.
    const std::string& DamagedCopy() const { return damaged_copy_; }

    // One attribute: its type and its bytes in memory order.
    struct Attribute {
        type_code type = 0;
        std::string bytes;
        bool as_bytes = false;  // stands in the file as bytes

        // A number of the short form as an integer (the integer part, cut to 32 bits' range) or
        // double; everything else as it is.
        Attribute As(type_code wanted) const;

        // How it stands in the file makes no difference.
        friend bool operator==(const Attribute& a, const Attribute& b) {
            return a.type == b.type && a.bytes == b.bytes;
        }
    };
    using Attributes = std::map<std::string, Attribute, std::less<>>;

    // The file's text to attributes and back. Parse returns false, with the reason and without
    // attributes, for text that is not of the form above, and throws std::bad_alloc where memory is
    // short.
    static bool Parse(std::string_view text, Attributes* attributes, std::string* reason);
    static std::string Print(const Attributes& attributes);

  private:
    status_t Load();
    status_t ReadFile();
    status_t PutAside(const std::string& reason);
    status_t CheckWritable();

    std::string path_;
    status_t status_ = B_NO_INIT;
    Attributes attributes_;
    std::optional<status_t> writable_;  // whether the file can be replaced, once that was tried
    bool changed_ = false;              // attributes_ holds what the file does not
    std::string damaged_copy_;
};
