#pragma once

#include <string_view>

#include "base/types.h"

// Something that carries typed attributes by name: the settings file, or a test's stand-in.
class BNode {
  public:
    virtual ~BNode() = default;

    // B_OK, or why attributes can neither be read nor written.
    virtual status_t InitCheck() const = 0;
    // Copies at most size bytes of the attribute, from its byte offset 0, and returns how many;
    // B_ENTRY_NOT_FOUND without such an attribute, another negative status on failure. The stored
    // type is not compared with type.
    virtual int64 ReadAttr(std::string_view name, type_code type, void* buffer, size_t size) = 0;
    // Creates or replaces the attribute. Returns size or a negative status.
    virtual int64 WriteAttr(std::string_view name, type_code type, const void* buffer,
                            size_t size) = 0;
    // Makes all writes so far permanent, at once or not at all. Nothing to do when none changed
    // anything.
    virtual status_t Sync() = 0;
};
