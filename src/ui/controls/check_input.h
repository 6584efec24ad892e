// The checks of numbers that a user types.
#pragma once

#include <string>

#include "base/types.h"
#include "resources/qt/text_control.h"

namespace kirto {

inline constexpr int32 kNoUpperBound = -1;
inline constexpr double kNoUpperBoundReal = -1.0;

// Returns the number that the field holds, and leaves the field showing just that number: what
// follows the number is dropped, an empty field becomes 0, and a number out of bounds is
// replaced by the bound, with an alert ("Width can't be less than 0."). subject: the name of the
// field in the alert.
int32 CheckInput(TextControl& control, int32 min, int32 max, const char* subject);
// The same with two decimals; further ones are rounded away.
double CheckInput(TextControl& control, double min, double max, const char* subject);

}  // namespace kirto
