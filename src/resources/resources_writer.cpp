#include "resources/resources_writer.h"

#include <set>
#include <utility>

#include "resources/resources_layout.h"

namespace kirto {

namespace {

constexpr size_t kMaxName = 0xFFFE;
// What a resource takes beside its bytes and its name: the entry in the index; id, position, length
// and terminator in the info table; and there, if it is the first of its type, the type's own
// words.
constexpr size_t kMostBesides = kIndexEntrySize + 4 + 4 + 2 + 1 + 3 * 4;
// What resources may take: the index may be a step larger than its entries.
constexpr size_t kRoom = kMaxContainerSize - kContainerHeaderSize - kIndexHeaderSize - kIndexStep -
                         kReservedSectionSize - kInfoTableTail;

// Stores the low 32 bits; containers are far smaller than those can say.
void PutWord(std::vector<uint8>* bytes, uint64 value) {
    AppendLittle(bytes, static_cast<uint32>(value));
}

// The header and the whole steps that the index of so many resources takes.
size_t AdministrativeSizeFor(size_t resources) {
    const size_t used = kIndexHeaderSize + resources * kIndexEntrySize;
    return kContainerHeaderSize + (used + kIndexStep - 1) / kIndexStep * kIndexStep;
}

void PutHeader(std::vector<uint8>* container, size_t resources) {
    PutWord(container, kContainerMagic);
    PutWord(container, resources);
    PutWord(container, kContainerHeaderSize);
    PutWord(container, AdministrativeSizeFor(resources));
    container->resize(kContainerHeaderSize);
}

// The filler words and the unused one mean nothing; as zeros they keep containers comparable.
void PutIndexHeader(std::vector<uint8>* container, size_t resources, size_t info_offset,
                    size_t info_size) {
    const size_t end = AdministrativeSizeFor(resources);
    PutWord(container, kContainerHeaderSize);
    PutWord(container, end - kContainerHeaderSize);
    PutWord(container, kIndexMark);
    PutWord(container, end);
    PutWord(container, kReservedSectionSize);
    container->resize(container->size() + size_t{kIndexFillerWords} * 4);
    PutWord(container, info_offset);
    PutWord(container, info_size);
    PutWord(container, 0);
}

}  // namespace

status_t ResourcesWriter::Add(type_code type, int32 id, std::string_view name,
                              std::vector<uint8> bytes) {
    if (name.size() > kMaxName || name.find('\0') != std::string_view::npos) return B_BAD_VALUE;
    const size_t more = bytes.size() + name.size() + kMostBesides;
    if (bytes.size() > kRoom || more > kRoom - needed_) return B_NO_MEMORY;
    needed_ += more;
    resources_.push_back({type, id, std::string(name), std::move(bytes)});
    return B_OK;
}

std::vector<uint8> ResourcesWriter::Container() const {
    const std::vector<uint8> info_table = InfoTable();
    const size_t data_offset = AdministrativeSizeFor(resources_.size()) + kReservedSectionSize;
    size_t info_offset = data_offset;
    for (const Resource& resource : resources_)
        info_offset += resource.bytes.size();

    std::vector<uint8> container;
    PutHeader(&container, resources_.size());
    PutIndexHeader(&container, resources_.size(), info_offset, info_table.size());
    size_t offset = data_offset;
    for (const Resource& resource : resources_) {
        PutWord(&container, offset);
        PutWord(&container, resource.bytes.size());
        PutWord(&container, 0);
        offset += resource.bytes.size();
    }
    container.resize(data_offset);
    for (const Resource& resource : resources_)
        container.insert(container.end(), resource.bytes.begin(), resource.bytes.end());
    container.insert(container.end(), info_table.begin(), info_table.end());
    return container;
}

// Types stand in the order of their first resource.
std::vector<uint8> ResourcesWriter::InfoTable() const {
    std::vector<uint8> table;
    std::set<type_code> done;
    for (const Resource& first : resources_) {
        if (!done.insert(first.type).second) continue;
        PutWord(&table, first.type);
        for (size_t i = 0; i < resources_.size(); ++i) {
            const Resource& resource = resources_[i];
            if (resource.type != first.type) continue;
            PutWord(&table, static_cast<uint32>(resource.id));
            PutWord(&table, static_cast<uint32>(i + 1));
            const size_t length = resource.name.size() + 1;
            AppendLittle(&table, static_cast<uint16>(length));
            table.insert(table.end(), resource.name.begin(), resource.name.end());
            table.push_back(0);
        }
        PutWord(&table, kTypeEnd);
        PutWord(&table, kTypeEnd);
    }
    PutWord(&table, InfoTableCheck(table));
    PutWord(&table, 0);
    return table;
}

}  // namespace kirto
