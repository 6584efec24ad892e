// Targa images; the stb library reads them.
#pragma once

#include <memory>

#include "kit/bitmap.h"
#include "kit/file.h"

namespace kirto {

// Reads the file as Targa, of any of its pixel and packing forms. Targa has no signature, so ask
// last. B_BAD_DATA if it is not a complete Targa file, B_NO_MEMORY when the budget refuses the
// picture or memory is short; the result is then left alone.
status_t ReadTarga(BFile& source, std::shared_ptr<PixelBudget> budget,
                   std::shared_ptr<BBitmap>* result);

// Writes to an empty file rows of 4-byte pixels in the order red, green, blue, alpha, without
// padding; alpha is dropped unless with_alpha. B_BAD_VALUE for a side that is not 1 to 65535 pixels
// or a picture of 2 GiB and more, B_NO_MEMORY when memory is short, B_IO_ERROR when the file can't
// be written. Not to be called by two threads at once.
status_t WriteTarga(const uint8* rgba, int32 width, int32 height, bool with_alpha, bool packed,
                    BFile& destination);

}  // namespace kirto
