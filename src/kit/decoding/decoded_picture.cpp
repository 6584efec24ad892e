#include "kit/decoding/decoded_picture.h"

#include <utility>

#include "kit/decoding/decoded_pixels.h"

namespace kirto {

namespace {

// Statuses that a decoder gives; any other is none that it could mean.
status_t CheckedStatus(status_t status) {
    return status == B_NO_MEMORY || status == B_IO_ERROR ? status : B_NO_TRANSLATOR;
}

}  // namespace

status_t PictureOf(const DecodeAnswer& answer, const FileDescriptor& pixels,
                   const std::shared_ptr<PixelBudget>& budget, std::shared_ptr<BBitmap>* result) {
    if (answer.status != B_OK) return CheckedStatus(answer.status);
    const auto space = static_cast<color_space>(answer.color_space);
    const bool known = space == B_RGB32 || space == B_RGBA32;
    if (!known || !HasDecodedPixels(pixels, answer.width, answer.height)) return B_BAD_DATA;
    const BRect bounds = BRect::OfSize(answer.width, answer.height);
    *result = BBitmap::OnSealedFile(bounds, space, pixels, budget);
    if ((*result)->InitCheck() == B_OK) return B_OK;
    result->reset();
    auto bitmap = std::make_shared<BBitmap>(bounds, space, budget);
    if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
    if (!ReadDecodedPixels(pixels, {bitmap->Bits(), bitmap->BitsLength()})) return B_BAD_DATA;
    *result = std::move(bitmap);
    return B_OK;
}

}  // namespace kirto
