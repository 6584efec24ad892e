// Pixels that tests paint with, as 0xAARRGGBB.
#pragma once

#include "base/types.h"

namespace kirto::test {

inline constexpr uint32 kBlack = 0xFF000000;
inline constexpr uint32 kRed = 0xFFFF0000;
inline constexpr uint32 kGreen = 0xFF00FF00;
inline constexpr uint32 kBlue = 0xFF0000FF;
inline constexpr uint32 kWhite = 0xFFFFFFFF;
inline constexpr uint32 kNone = 0x00000000;

}  // namespace kirto::test
