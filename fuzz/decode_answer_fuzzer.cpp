// Arbitrary bytes as what a decoder answers: as much as a program reads of them is a picture with
// the size that it says, or none. The first byte says how large a file comes along, and how.
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "kit/decoding/decode_channel.h"
#include "kit/decoding/decoded_picture.h"

namespace {

using Received = kirto::DecodeChannel::Received;

constexpr uint64 kMostBytes = 1 << 20;
constexpr int kSealed = 0x80;
constexpr int kNoFile = 0x7F;

void Check(bool holds) {
    if (!holds) std::abort();
}

kirto::FileDescriptor FileOf(uint8 how) {
    if ((how & kNoFile) == kNoFile) return {};
    kirto::FileDescriptor file(memfd_create("pixels", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    Check(ftruncate(file.Get(), off_t{how & kNoFile} * 64) == 0);
    if (how & kSealed) {
        Check(fcntl(file.Get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE) == 0);
    }
    return file;
}

void CheckPicture(const kirto::DecodeAnswer& answer, const kirto::FileDescriptor& pixels) {
    const auto budget = std::make_shared<kirto::PixelBudget>(kMostBytes);
    std::shared_ptr<BBitmap> picture;
    const status_t status = kirto::PictureOf(answer, pixels, budget, &picture);
    Check((status == B_OK) == (picture != nullptr));
    if (!picture) {
        Check(budget->Used() == 0);
        return;
    }
    Check(answer.status == B_OK && picture->Width() == answer.width &&
          picture->Height() == answer.height && budget->Used() <= kMostBytes);
    uint32 sum = 0;
    for (size_t i = 0; i < picture->BitsLength(); ++i)
        sum += picture->Bits()[i];
    Check(sum == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    auto ends = kirto::DecodeChannel::MakePair();
    Check(ends.has_value());
    kirto::DecodeChannel child(std::move(ends->first));
    kirto::DecodeChannel parent(std::move(ends->second));
    const kirto::FileDescriptor file = FileOf(data[0]);
    Check(child.Send({reinterpret_cast<const std::byte*>(data + 1), size - 1}, file.Get()));

    kirto::DecodeAnswer answer{};
    kirto::FileDescriptor pixels;
    const Received received = parent.Receive(std::as_writable_bytes(std::span(&answer, 1)), &pixels,
                                             std::chrono::milliseconds(0));
    Check((received == Received::kMessage) == (size - 1 == sizeof(answer)));
    if (received != Received::kMessage) return 0;
    Check(static_cast<bool>(pixels) == static_cast<bool>(file));
    CheckPicture(answer, pixels);
    return 0;
}
