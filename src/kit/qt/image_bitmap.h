// Qt's pictures as bitmaps.
#pragma once

#include <QImage>
#include <QImageReader>
#include <memory>

#include "kit/bitmap.h"

namespace kirto {

// The picture as a bitmap, B_RGBA32 when it has an alpha channel, else B_RGB32; null when the
// budget refuses it or memory is short.
std::shared_ptr<BBitmap> BitmapOf(const QImage& image, std::shared_ptr<PixelBudget> budget);

// True when the reader will decode straight into a bitmap's pixels: then the picture is in memory
// once, not twice.
bool DecodesInPlace(const QImageReader& reader);

// Reads a picture for which DecodesInPlace(). B_NO_MEMORY when the budget refuses it,
// B_NO_TRANSLATOR when it can't be decoded.
status_t ReadInPlace(QImageReader& reader, std::shared_ptr<PixelBudget> budget,
                     std::shared_ptr<BBitmap>* result);

}  // namespace kirto
