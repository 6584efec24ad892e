// Pictures as Qt paints and writes them.
#pragma once

#include <QImage>
#include <memory>

#include "kit/bitmap.h"

namespace kirto {

// The 32-bit picture as an image. Where the order of bytes allows it the image shares the picture's
// pixels, and keeps the picture as long as it lives itself. Without a pixel of alpha below 255 it
// has no alpha channel. Null for no picture, a picture without bits and other color spaces.
QImage ImageOfPicture(const std::shared_ptr<const BBitmap>& picture);

// The same for a picture that outlives the image.
QImage ImageOfPicture(const BBitmap& picture);

}  // namespace kirto
