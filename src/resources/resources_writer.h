#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kirto {

// Collects resources and lays them out as the container that BResources reads.
class ResourcesWriter {
  public:
    // B_BAD_VALUE for a name with a zero byte in it or of more than 65,534 bytes; B_NO_MEMORY when
    // the container would grow larger than its reader takes. Either leaves the resource out.
    status_t Add(type_code type, int32 id, std::string_view name, std::vector<uint8> bytes);

    // The container; the same resources give the same bytes.
    std::vector<uint8> Container() const;

  private:
    struct Resource {
        type_code type = 0;
        int32 id = 0;
        std::string name;
        std::vector<uint8> bytes;
    };

    std::vector<uint8> InfoTable() const;

    std::vector<Resource> resources_;
    size_t needed_ = 0;  // bytes of the container that depend on the resources, at most
};

}  // namespace kirto
