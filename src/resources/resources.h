#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/allocation.h"
#include "base/types.h"
#include "kit/file.h"

namespace kirto {

// Types of the resources that a program carries.
inline constexpr type_code kWindowArchiveType = FourCharCode("ARCV");
inline constexpr type_code kLargeIconType = FourCharCode("ICON");
inline constexpr type_code kMiniIconType = FourCharCode("MICN");
inline constexpr type_code kMimeStringType = FourCharCode("MIMS");
inline constexpr type_code kVersionType = FourCharCode("APPV");
inline constexpr type_code kFlagsType = FourCharCode("APPF");

}  // namespace kirto

// The resources of one container file: blocks of bytes, each with a type, an id and a name
// (docs/formats/resources.md). The container is read and checked as a whole; nothing of a damaged
// one is handed out. Doesn't change after construction, so any thread may look things up.
class BResources {
  public:
    struct Resource {
        type_code type;
        int32 id;
        std::string_view name;
        std::span<const uint8> bytes;
    };

    // Reads the file, which is needed no longer afterward, from its start. InitCheck() tells
    // whether that went well.
    explicit BResources(BFile* file);

    // B_OK; why the file can't be read; B_BAD_DATA for a damaged container; B_NO_MEMORY for one
    // that is too large. Without B_OK there are no resources.
    status_t InitCheck() const { return status_; }

    bool HasResource(type_code type, std::string_view name) const;
    bool HasResource(type_code type, int32 id) const;
    // The bytes of the first resource of the type with that name or id; nothing without one. They
    // live as long as this object.
    std::optional<std::span<const uint8>> FindResource(type_code type, std::string_view name) const;
    std::optional<std::span<const uint8>> FindResource(type_code type, int32 id) const;

    // All of them, in the order of the container's index.
    std::span<const Resource> Resources() const { return {resources_.get(), count_}; }

  private:
    status_t ReadContainer(BFile* file);
    const Resource* Find(type_code type, std::string_view name) const;
    const Resource* Find(type_code type, int32 id) const;

    kirto::AllocatedArray<uint8> bytes_;
    kirto::AllocatedArray<Resource> resources_;  // count_ of them
    size_t count_ = 0;
    status_t status_;
};
