// The four-character codes of the commands that travel between the application and its windows,
// each with its sender, its meaning and its fields. A test keeps them distinct.
#pragma once

#include "platform/types.h"

namespace kirto {

// Application to main window: refresh what is shown. No fields.
inline constexpr uint32 kUpdateAll = FourCharCode("auda");
inline constexpr uint32 kUpdateFrames = FourCharCode("aufr");          // frame views, status line
inline constexpr uint32 kUpdateFramesNoStatus = FourCharCode("auns");  // frame views only

// Application to main window: thumbnail height after the first frame came in. No fields.
inline constexpr uint32 kThumbnailFirstFull = FourCharCode("tvff");  // the first frame's height
inline constexpr uint32 kThumbnailFirstHalf = FourCharCode("tvfh");  // half of it
inline constexpr uint32 kThumbnailPreset = FourCharCode("tvpv");     // the settings' fixed height

// Application and codecs to main window: progress. String "text": the status line.
inline constexpr uint32 kStatusUpdate = FourCharCode("svup");

}  // namespace kirto
