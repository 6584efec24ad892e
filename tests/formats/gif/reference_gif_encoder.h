// The GIF encoder stated again the plain way, for comparison: one pixel and one code at a time,
// with nothing remembered between pixels but what the file format and the dithering ask for.
#pragma once

#include <vector>

#include "document/animation_document.h"

namespace kirto::test {

// The whole file for the document. Every frame has a bitmap of its own size, of at least one pixel.
std::vector<uint8> EncodeReferenceGif(const AnimationDocument& document);

// The image data of a picture of these palette indices, at least one: code size byte, data
// sub-blocks, terminator.
std::vector<uint8> ReferenceImageData(const std::vector<uint8>& indices, int32 min_code_size);

// The frame's palette indices in the order in which they are written.
std::vector<uint8> ReferenceIndices(const AnimationDocument& document, const Frame& frame);

}  // namespace kirto::test
