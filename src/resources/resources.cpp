#include "resources/resources.h"

#include <algorithm>

#include "base/byte_reader.h"
#include "resources/resources_layout.h"

namespace {

using Resource = BResources::Resource;

// Takes a container apart. The methods stand in the order of the file and are called so; each is
// false where the container is damaged.
class ContainerReader {
  public:
    explicit ContainerReader(std::span<const uint8> container) : container_(container) {}

    // How many resources there are: no more than the file has room for in its index.
    bool ReadHeader(size_t* count);
    // Finds the bytes of each resource.
    bool ReadIndex(std::span<Resource> resources);
    // Gives each resource its type, id and name, exactly once.
    bool ReadInfoTable(std::span<Resource> resources);

  private:
    bool ReadTypeBlock(kirto::ByteReader* table, std::span<Resource> resources);
    bool ReadName(kirto::ByteReader* table, Resource* resource);
    bool FindSection(uint32 offset, uint32 size, std::span<const uint8>* bytes) const;

    std::span<const uint8> container_;
    // Where the sections before the one sought end: nothing lies before that.
    uint32 start_ = 0;
    std::span<const uint8> info_table_;
    size_t named_ = 0;
};

bool ContainerReader::ReadHeader(size_t* count) {
    kirto::ByteReader header(container_);
    if (header.U32() != kirto::kContainerMagic) return false;
    *count = header.U32();
    if (header.U32() != kirto::kContainerHeaderSize) return false;
    start_ = header.U32();
    constexpr uint32 kEntries = kirto::kContainerHeaderSize + kirto::kIndexHeaderSize;
    if (start_ < kEntries || start_ > container_.size()) return false;
    return *count <= (start_ - kEntries) / kirto::kIndexEntrySize;
}

bool ContainerReader::ReadIndex(std::span<Resource> resources) {
    kirto::ByteReader index(container_.first(start_));
    index.Bytes(kirto::kContainerHeaderSize);
    if (index.U32() != kirto::kContainerHeaderSize) return false;
    if (index.U32() != start_ - kirto::kContainerHeaderSize) return false;
    if (index.U32() != kirto::kIndexMark) return false;
    if (index.U32() != start_) return false;
    std::span<const uint8> reserved;
    if (!FindSection(start_, index.U32(), &reserved)) return false;
    start_ += static_cast<uint32>(reserved.size());
    index.Bytes(size_t{kirto::kIndexFillerWords} * 4);
    const uint32 offset = index.U32();
    if (!FindSection(offset, index.U32(), &info_table_)) return false;
    index.Bytes(4);
    for (Resource& resource : resources) {
        const uint32 data_offset = index.U32();
        if (!FindSection(data_offset, index.U32(), &resource.bytes)) return false;
        if (index.U32() != 0) return false;
    }
    return !index.Overrun();
}

bool ContainerReader::ReadInfoTable(std::span<Resource> resources) {
    if (info_table_.size() < kirto::kInfoTableTail) return false;
    const auto blocks = info_table_.first(info_table_.size() - kirto::kInfoTableTail);
    kirto::ByteReader tail(info_table_.last(kirto::kInfoTableTail));
    if (tail.U32() != kirto::InfoTableCheck(blocks) || tail.U32() != 0) return false;
    kirto::ByteReader table(blocks);
    while (table.Left() > 0) {
        if (!ReadTypeBlock(&table, resources)) return false;
    }
    return named_ == resources.size();
}

bool ContainerReader::ReadTypeBlock(kirto::ByteReader* table, std::span<Resource> resources) {
    const type_code type = table->U32();
    while (!table->Overrun()) {
        const uint32 id = table->U32();
        const uint32 position = table->U32();
        if (id == kirto::kTypeEnd && position == kirto::kTypeEnd) return true;
        if (position == 0 || position > resources.size()) return false;
        Resource* resource = &resources[position - 1];
        resource->type = type;
        resource->id = static_cast<int32>(id);
        if (!ReadName(table, resource)) return false;
    }
    return false;
}

bool ContainerReader::ReadName(kirto::ByteReader* table, Resource* resource) {
    // A name's place in the file is set, also when the name is empty.
    if (resource->name.data()) return false;
    const std::span<const uint8> name = table->Bytes(table->U16());
    // Ends at its first zero byte, and that is its last byte.
    if (name.empty() || std::find(name.begin(), name.end(), 0) != name.end() - 1) return false;
    resource->name = {reinterpret_cast<const char*>(name.data()), name.size() - 1};
    ++named_;
    return true;
}

bool ContainerReader::FindSection(uint32 offset, uint32 size, std::span<const uint8>* bytes) const {
    if (offset < start_ || offset > container_.size()) return false;
    if (size > container_.size() - offset) return false;
    *bytes = container_.subspan(offset, size);
    return true;
}

std::optional<std::span<const uint8>> BytesOf(const Resource* resource) {
    if (!resource) return std::nullopt;
    return resource->bytes;
}

}  // namespace

BResources::BResources(BFile* file) : status_(ReadContainer(file)) {
    if (status_ != B_OK) count_ = 0;
}

status_t BResources::ReadContainer(BFile* file) {
    if (file->InitCheck() != B_OK) return file->InitCheck();
    if (file->Size() > static_cast<int64>(kirto::kMaxContainerSize)) return B_NO_MEMORY;
    const auto size = static_cast<size_t>(file->Size());
    if (size < kirto::kContainerHeaderSize) return B_BAD_DATA;
    bytes_ = kirto::AllocateArray<uint8>(size);
    if (!bytes_) return B_NO_MEMORY;
    file->Seek(0, SEEK_FROM_START);
    if (!file->ReadExactly(bytes_.get(), size)) return B_IO_ERROR;
    ContainerReader reader({bytes_.get(), size});
    if (!reader.ReadHeader(&count_)) return B_BAD_DATA;
    // One more, since no memory at all can't be told from a failure.
    resources_ = kirto::AllocateArray<Resource>(count_ + 1);
    if (!resources_) return B_NO_MEMORY;
    const std::span<Resource> resources{resources_.get(), count_};
    return reader.ReadIndex(resources) && reader.ReadInfoTable(resources) ? B_OK : B_BAD_DATA;
}

const BResources::Resource* BResources::Find(type_code type, std::string_view name) const {
    for (const Resource& resource : Resources()) {
        if (resource.type == type && resource.name == name) return &resource;
    }
    return nullptr;
}

const BResources::Resource* BResources::Find(type_code type, int32 id) const {
    for (const Resource& resource : Resources()) {
        if (resource.type == type && resource.id == id) return &resource;
    }
    return nullptr;
}

bool BResources::HasResource(type_code type, std::string_view name) const {
    return Find(type, name) != nullptr;
}

bool BResources::HasResource(type_code type, int32 id) const {
    return Find(type, id) != nullptr;
}

std::optional<std::span<const uint8>> BResources::FindResource(type_code type,
                                                               std::string_view name) const {
    return BytesOf(Find(type, name));
}

std::optional<std::span<const uint8>> BResources::FindResource(type_code type, int32 id) const {
    return BytesOf(Find(type, id));
}
