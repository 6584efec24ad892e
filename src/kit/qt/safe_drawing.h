// SVG drawings that refer to nothing outside themselves.
#pragma once

#include <QByteArray>
#include <functional>

#include "kit/file.h"

namespace kirto {

// Turns an image file that is embedded in a drawing into a PNG file; nothing when it can't be read.
using EmbeddedImageReader = std::function<QByteArray(const QByteArray& file)>;

// The drawing as plain SVG in which nothing is left that Qt would open a file for: no stylesheets
// or pictures from elsewhere, no links, no entities. Embedded pictures stay, as PNG. source: plain
// or packed by gzip. B_BAD_DATA if it is not a complete SVG drawing, B_NO_TRANSLATOR for one of
// more than 1 MiB, packed or not: a drawing that small can't take much memory.
status_t ReadSafeDrawing(BFile& source, const EmbeddedImageReader& read_embedded,
                         QByteArray* drawing);

}  // namespace kirto
