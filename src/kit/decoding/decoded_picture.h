// What a decoder answers when it is asked for a picture. It may answer anything.
#pragma once

#include <memory>

#include "base/file_descriptor.h"
#include "base/pixel_budget.h"
#include "kit/bitmap.h"
#include "kit/decoding/decode_protocol.h"

namespace kirto {

// The picture that came along with the answer, its pixels counted by the budget, if any. B_BAD_DATA
// when it is not what the answer says; B_NO_MEMORY, B_IO_ERROR or B_NO_TRANSLATOR where the answer
// is that there is none.
status_t PictureOf(const DecodeAnswer& answer, const FileDescriptor& pixels,
                   const std::shared_ptr<PixelBudget>& budget, std::shared_ptr<BBitmap>* result);

}  // namespace kirto
