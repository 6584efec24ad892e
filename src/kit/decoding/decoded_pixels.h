// Pixels that another process has put into a file in memory. Nothing of it is mapped, so whatever
// the process does to the file meanwhile, reading it fails at worst.
#pragma once

#include <span>

#include "base/file_descriptor.h"
#include "base/types.h"

namespace kirto {

// Whether the file has the bytes of so many pixels, at 4 bytes a pixel; false also for sides that
// no picture has.
bool HasDecodedPixels(const FileDescriptor& file, int32 width, int32 height);
// Fills the pixels from the file's start. False when it has fewer bytes.
bool ReadDecodedPixels(const FileDescriptor& file, std::span<uint8> pixels);

}  // namespace kirto
