// Where the main window stands.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

#include "kit/rect.h"

namespace kirto {

// The rectangle in whole pixels. Settings may hold any numbers: those that are none become 0, and
// those beyond every screen are brought nearer.
QRect PixelsOf(const BRect& frame);

// The place of a window that nobody has given one: in the middle of the screen's free area, as
// large as its content needs and at least 1,100 x 720, but no larger than the screen has room for
// with the decoration around it: its title and its borders.
QRect FirstPlace(const QSize& needed, const QRect& screen, const QMargins& decoration);

}  // namespace kirto
