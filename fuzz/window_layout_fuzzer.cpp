// Arbitrary bytes as the readable source of a window: refused with a sentence, or an archive that
// comes back unchanged from its bytes and whose frames can be scaled.
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "base/file_descriptor.h"
#include "resources/rescale_archive.h"
#include "resources/window_layout.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const kirto::FileDescriptor file(memfd_create("layout", MFD_CLOEXEC));
    Check(file && write(file.Get(), data, size) == static_cast<ssize_t>(size));
    BMessage archive;
    std::string error;
    const std::string path = "/proc/self/fd/" + std::to_string(file.Get());
    if (!kirto::CompileWindowLayout(path, &archive, &error)) {
        Check(!error.empty() && archive == BMessage());
        return 0;
    }
    const std::vector<uint8> bytes = archive.Flatten();
    BMessage again;
    Check(again.Unflatten(bytes.data(), bytes.size()) == B_OK && again == archive);
    for (const float factor : {0.0F, 1.0F, 1.7F})
        kirto::RescaleArchive(archive, factor, 14.0F);
    return 0;
}
