// The four-character codes of the commands that travel between the application and its windows,
// each with its sender, its meaning and its fields. A test keeps them distinct.
#pragma once

#include "platform/types.h"

namespace kirto {

// Application to main window: refresh what is shown. No fields.
inline constexpr uint32 kUpdateAll = FourCharCode("auda");
inline constexpr uint32 kUpdateFrames = FourCharCode("aufr");          // frame views, status line
inline constexpr uint32 kUpdateFramesNoStatus = FourCharCode("auns");  // frame views only

// Application to main window: a save has finished, go on with what waited for it. No fields.
inline constexpr uint32 kResume = FourCharCode("arsm");

// Application to main window: thumbnail height after the first frame came in. No fields.
inline constexpr uint32 kThumbnailFirstFull = FourCharCode("tvff");  // the first frame's height
inline constexpr uint32 kThumbnailFirstHalf = FourCharCode("tvfh");  // half of it
inline constexpr uint32 kThumbnailPreset = FourCharCode("tvpv");     // the settings' fixed height

// Application and codecs to main window: progress. String "text": the status line.
inline constexpr uint32 kStatusUpdate = FourCharCode("svup");

// File panels and desktop to application. Refs "refs"; the first only, but for kInsertFiles.
inline constexpr uint32 kOpenFile = FourCharCode("aofp");     // bool "reset", int32 "position"
inline constexpr uint32 kInsertFiles = FourCharCode("aifp");  // int32 "position"
inline constexpr uint32 kInsertTiledFile = FourCharCode("aitp");
// Save panel to application. Int64 "translator_id", ref "directory", string "name".
inline constexpr uint32 kSaveFile = FourCharCode("asfp");

// Main window to application. No fields but those named.
inline constexpr uint32 kSaveAgain = FourCharCode("asav");  // to the current file
inline constexpr uint32 kResetDocument = FourCharCode("arst");
inline constexpr uint32 kSelectFrame = FourCharCode("aslt");  // int32 "number"
inline constexpr uint32 kRemoveFrame = FourCharCode("awfr");
inline constexpr uint32 kMoveFrameUp = FourCharCode("awfu");
inline constexpr uint32 kMoveFrameDown = FourCharCode("awfd");
inline constexpr uint32 kReverseFrames = FourCharCode("awfv");
inline constexpr uint32 kPreview = FourCharCode("awvp");

// Fade dialog to application. Int32 "count", int32 "color" (red, green, blue from the top byte on).
inline constexpr uint32 kFadeToColor = FourCharCode("fwtr");
inline constexpr uint32 kFadeFromColor = FourCharCode("fwfr");
inline constexpr uint32 kFadeToNext = FourCharCode("fwtf");
inline constexpr uint32 kFadeFromPrevious = FourCharCode("fwff");

// Current-frame panel to application: the current frame's palette. No fields.
inline constexpr uint32 kFrameWebSafe = FourCharCode("lvwp");
inline constexpr uint32 kFrameSystem = FourCharCode("lvbp");
inline constexpr uint32 kFrameGreyscale = FourCharCode("lvgp");
inline constexpr uint32 kFrameOptimal = FourCharCode("lvop");

}  // namespace kirto
