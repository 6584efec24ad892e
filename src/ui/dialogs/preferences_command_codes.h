// The commands of the preferences window's controls that the window answers; each is the message of
// one control in resources/preferences_window.toml. The other controls' messages stand there alone:
// the window reads those controls when it saves. No fields.
#pragma once

#include "base/types.h"

namespace kirto {

// "Global"
inline constexpr uint32 kPrefsWidth = FourCharCode("pwgw");
inline constexpr uint32 kPrefsHeight = FourCharCode("pwgh");
inline constexpr uint32 kPrefsUsePause = FourCharCode("pwgp");
inline constexpr uint32 kPrefsPauseLength = FourCharCode("pwgP");
inline constexpr uint32 kPrefsUseLoop = FourCharCode("pwgl");
inline constexpr uint32 kPrefsLoopCount = FourCharCode("pwgL");

// "Palette"
inline constexpr uint32 kPrefsWebSafe = FourCharCode("pwpw");
inline constexpr uint32 kPrefsSystemPalette = FourCharCode("pwpb");
inline constexpr uint32 kPrefsGreyscale = FourCharCode("pwpg");
inline constexpr uint32 kPrefsPaletteFromFile = FourCharCode("pwpf");
inline constexpr uint32 kPrefsPaletteFile = FourCharCode("pwpn");
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

// "Miscellaneous"
inline constexpr uint32 kPrefsTemporaryFolder = FourCharCode("pwmf");

// "Compatibility"
inline constexpr uint32 kPrefsExactColors = FourCharCode("pwce");
inline constexpr uint32 kPrefsMatte = FourCharCode("pwcm");
inline constexpr uint32 kPrefsThreshold = FourCharCode("pwct");

inline constexpr uint32 kPrefsSave = FourCharCode("pwsa");
inline constexpr uint32 kPrefsCancel = FourCharCode("pwca");

}  // namespace kirto
