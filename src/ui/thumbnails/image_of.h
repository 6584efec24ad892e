// Pictures of frames as Qt paints them.
#pragma once

#include <QImage>
#include <memory>

#include "picture/picture.h"

namespace kirto {

// The picture as an image, without an alpha channel where every pixel has alpha 255. Null for no
// picture, one without rows, and when memory is short.
QImage ImageOf(const std::shared_ptr<const Picture>& picture);

}  // namespace kirto
