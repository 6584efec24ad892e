// Commands of the preferences window's controls to the window. No fields.
#pragma once

#include "platform/types.h"

namespace kirto {

// "Global"
inline constexpr uint32 kPrefsWidth = FourCharCode("pwgw");
inline constexpr uint32 kPrefsHeight = FourCharCode("pwgh");
inline constexpr uint32 kPrefsUsePause = FourCharCode("pwgp");
inline constexpr uint32 kPrefsPauseLength = FourCharCode("pwgP");
inline constexpr uint32 kPrefsUseLoop = FourCharCode("pwgl");
inline constexpr uint32 kPrefsLoopCount = FourCharCode("pwgL");
inline constexpr uint32 kPrefsSetDimensions = FourCharCode("pwgs");
inline constexpr uint32 kPrefsHundredths = FourCharCode("pwgd");
inline constexpr uint32 kPrefsSeconds = FourCharCode("pwgn");

// "Palette"
inline constexpr uint32 kPrefsWebSafe = FourCharCode("pwpw");
inline constexpr uint32 kPrefsSystemPalette = FourCharCode("pwpb");
inline constexpr uint32 kPrefsGreyscale = FourCharCode("pwpg");
inline constexpr uint32 kPrefsPaletteFromFile = FourCharCode("pwpf");
inline constexpr uint32 kPrefsPaletteFile = FourCharCode("pwpn");
inline constexpr uint32 kPrefsDither = FourCharCode("pwpd");
inline constexpr uint32 kPrefsBackgroundIndex = FourCharCode("pwpa");
inline constexpr uint32 kPrefsUseTransparent = FourCharCode("pwpt");
inline constexpr uint32 kPrefsTransparentIndex = FourCharCode("pwpT");

// "Thumbnail"
inline constexpr uint32 kPrefsFullSize = FourCharCode("pwtf");
inline constexpr uint32 kPrefsHalfSize = FourCharCode("pwth");
inline constexpr uint32 kPrefsPreset = FourCharCode("pwtp");
inline constexpr uint32 kPrefsPresetValue = FourCharCode("pwtP");
inline constexpr uint32 kPrefsNoChange = FourCharCode("pwtn");
inline constexpr uint32 kPrefsMaxHeight = FourCharCode("pwta");
inline constexpr uint32 kPrefsMinHeight = FourCharCode("pwti");
inline constexpr uint32 kPrefsDrawTransparent = FourCharCode("pwtt");

// "Animation"
inline constexpr uint32 kPrefsDisposalNone = FourCharCode("pwan");
inline constexpr uint32 kPrefsDisposalLeave = FourCharCode("pwal");
inline constexpr uint32 kPrefsDisposalBackground = FourCharCode("pwab");
inline constexpr uint32 kPrefsDisposalPrevious = FourCharCode("pwap");
inline constexpr uint32 kPrefsInterlaced = FourCharCode("pwai");
inline constexpr uint32 kPrefsComment = FourCharCode("pwac");
inline constexpr uint32 kPrefsLoadFullFrame = FourCharCode("pwaa");

// "Miscellaneous"
inline constexpr uint32 kPrefsThumbnailMode = FourCharCode("pwmt");
inline constexpr uint32 kPrefsFrameListMode = FourCharCode("pwml");
inline constexpr uint32 kPrefsSaveDimensions = FourCharCode("pwmd");
inline constexpr uint32 kPrefsTemporaryFolder = FourCharCode("pwmf");

inline constexpr uint32 kPrefsSave = FourCharCode("pwsa");
inline constexpr uint32 kPrefsCancel = FourCharCode("pwca");

}  // namespace kirto
