// Arbitrary bytes as an image file whose header is read.
#include <cstdlib>

#include "kit/image_header.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto file = BFile::OnMemory({data, data + size});
    const kirto::ImageHeader header = kirto::ReadImageHeader(*file);
    if (!*header.format && header.width != 0) std::abort();
    if (header.Pixels() > kirto::ImageHeader::kMostPixels) std::abort();
    return 0;
}
