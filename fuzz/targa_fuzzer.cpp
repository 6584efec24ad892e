// Reading arbitrary bytes as a Targa image, and what was read once more after writing it.
#include <algorithm>
#include <cstdlib>

#include "kit/targa.h"

namespace {

constexpr uint64 kMaxPictureBytes = 16 << 20;

std::shared_ptr<BBitmap> Read(std::vector<uint8> bytes) {
    std::shared_ptr<BBitmap> picture;
    const auto file = BFile::OnMemory(std::move(bytes));
    const auto budget = std::make_shared<kirto::PixelBudget>(kMaxPictureBytes);
    const status_t status = kirto::ReadTarga(*file, budget, &picture);
    if ((status == B_OK) != (picture != nullptr)) std::abort();
    return picture;
}

// Writing takes red before blue; as long as both copies swap them, they stay the same.
void CheckWriting(const BBitmap& picture, bool packed) {
    const auto file = BFile::OnMemory();
    const bool with_alpha = picture.ColorSpace() == B_RGBA32;
    if (kirto::WriteTarga(picture.Bits(), picture.Width(), picture.Height(), with_alpha, packed,
                          *file) != B_OK) {
        std::abort();
    }
    const auto copy = Read(file->Memory());
    if (!copy || copy->BitsLength() != picture.BitsLength()) std::abort();
    for (size_t i = 0; i < picture.BitsLength(); i += 4) {
        std::swap(copy->Bits()[i], copy->Bits()[i + 2]);
    }
    if (!std::equal(copy->Bits(), copy->Bits() + copy->BitsLength(), picture.Bits())) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::shared_ptr<BBitmap> picture = Read({data, data + size});
    if (!picture) return 0;
    CheckWriting(*picture, false);
    CheckWriting(*picture, true);
    return 0;
}
