// Pictures of frames as Qt paints them.
#pragma once

#include <QImage>
#include <memory>

#include "picture/picture.h"

namespace kirto {

// The picture as an image, without an alpha channel where every pixel has alpha 255. Pictures of
// many million pixels are thinned out, but not below twice the size, in pixels, in which they are
// to be shown: as an image they may take far more memory than as a picture. Null for no picture,
// one without rows, and when memory is short.
QImage ImageOf(const std::shared_ptr<const Picture>& picture, QSize shown);

}  // namespace kirto
