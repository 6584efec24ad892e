// A resource container from hostile bytes: refused, or sound enough that all it holds is found and
// can be laid out anew.
#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "base/byte_order.h"
#include "resources/resources.h"
#include "resources/resources_layout.h"
#include "resources/resources_writer.h"

namespace {

bool SameBytes(std::span<const uint8> one, std::span<const uint8> other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end());
}

void CheckFound(const BResources& resources, const BResources::Resource& resource) {
    if (!resources.HasResource(resource.type, resource.name)) std::abort();
    if (!resources.FindResource(resource.type, resource.name)) std::abort();
    if (!resources.FindResource(resource.type, resource.id)) std::abort();
}

void CheckWriting(const BResources& resources) {
    kirto::ResourcesWriter writer;
    for (const BResources::Resource& each : resources.Resources()) {
        if (writer.Add(each.type, each.id, each.name, {each.bytes.begin(), each.bytes.end()}) !=
            B_OK) {
            return;  // data that overlaps can be more than a container has room for
        }
    }
    const auto file = BFile::OnMemory(writer.Container());
    const BResources copy(file.get());
    if (copy.InitCheck() != B_OK) std::abort();
    const auto same = [](const BResources::Resource& one, const BResources::Resource& other) {
        return one.type == other.type && one.id == other.id && one.name == other.name &&
               SameBytes(one.bytes, other.bytes);
    };
    const auto before = resources.Resources();
    const auto after = copy.Resources();
    if (!std::equal(before.begin(), before.end(), after.begin(), after.end(), same)) std::abort();
}

void CheckContainer(std::vector<uint8> bytes) {
    const auto file = BFile::OnMemory(std::move(bytes));
    const BResources resources(file.get());
    if (resources.InitCheck() != B_OK) {
        if (!resources.Resources().empty()) std::abort();
        return;
    }
    for (const BResources::Resource& resource : resources.Resources())
        CheckFound(resources, resource);
    CheckWriting(resources);
}

// With the check word that the info table should have, so that changes in the table get past it.
std::vector<uint8> WithRightCheckWord(std::vector<uint8> bytes) {
    constexpr size_t kInfoPlace = kirto::kContainerHeaderSize + 30 * 4;
    if (bytes.size() < kInfoPlace + 8) return bytes;
    const size_t offset = kirto::ReadLittle32(&bytes[kInfoPlace]);
    const size_t size = kirto::ReadLittle32(&bytes[kInfoPlace + 4]);
    if (offset > bytes.size() || size > bytes.size() - offset) return bytes;
    if (size < kirto::kInfoTableTail) return bytes;
    const size_t blocks_size = size - kirto::kInfoTableTail;
    const uint32 check = kirto::InfoTableCheck({&bytes[offset], blocks_size});
    kirto::WriteLittle16(&bytes[offset + blocks_size], check);
    kirto::WriteLittle16(&bytes[offset + blocks_size + 2], check >> 16);
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8* data, size_t size) {
    const std::vector<uint8> bytes(data, data + size);
    CheckContainer(bytes);
    CheckContainer(WithRightCheckWord(bytes));
    return 0;
}
