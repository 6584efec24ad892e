// The four-character codes of the commands that travel between the application and its windows,
// each with its sender, its meaning and its fields. A test keeps them distinct.
#pragma once

#include "base/types.h"

namespace kirto {

// Application to main window: refresh what is shown. No fields.
inline constexpr uint32 kUpdateAll = FourCharCode("auda");
inline constexpr uint32 kUpdateFrames = FourCharCode("aufr");          // frame views, status line
inline constexpr uint32 kUpdateFramesNoStatus = FourCharCode("auns");  // frame views only

// Application to main window: a save has finished, go on with what waited for it. No fields.
inline constexpr uint32 kResume = FourCharCode("arsm");

// Application to main window: a change that was counted as waiting is done. No fields.
inline constexpr uint32 kEditDone = FourCharCode("aued");

// Application to main window: forget the command that waits for a save. No fields.
inline constexpr uint32 kAbandonPending = FourCharCode("aabn");

// Application to main window: thumbnail height after the first frame came in. No fields.
inline constexpr uint32 kThumbnailFirstFull = FourCharCode("tvff");  // the first frame's height
inline constexpr uint32 kThumbnailFirstHalf = FourCharCode("tvfh");  // half of it
inline constexpr uint32 kThumbnailPreset = FourCharCode("tvpv");     // the settings' fixed height

// Application and codecs to main window: progress. String "text": the status line.
inline constexpr uint32 kStatusUpdate = FourCharCode("svup");

// Application to main window: how far a command that takes long is. Int64 "piece", by which it is
// stopped, or 0 when it is over; "done", "total".
inline constexpr uint32 kWorkProgress = FourCharCode("awrk");

// Application to main window: show something quietly, in place of what was shown before, or nothing
// any more. String "text"; for each of its buttons a string "button" and an int32 "command", which
// the window sends itself.
inline constexpr uint32 kShowNotice = FourCharCode("antc");
inline constexpr uint32 kHideNotice = FourCharCode("anth");

// A notice's buttons to main window, which passes them on to the application but for the last. No
// fields.
inline constexpr uint32 kCloseNotice = FourCharCode("wntc");
inline constexpr uint32 kUndoOpening = FourCharCode("auop");     // of an animation, as browsers do
inline constexpr uint32 kSaveFaithfully = FourCharCode("asvf");  // to the current file
// Makes the frames that are larger than the canvas fit it.
inline constexpr uint32 kScaleLargerFrames = FourCharCode("apsl");
inline constexpr uint32 kCropLargerFrames = FourCharCode("apcl");
inline constexpr uint32 kShowDifferences = FourCharCode("wsdf");  // in a window

// Application to itself: a save was found to show something else than the window. No fields.
inline constexpr uint32 kSaveChecked = FourCharCode("asck");

// Status line to main window: stop that. No fields.
inline constexpr uint32 kStopWork = FourCharCode("wwst");

// Main window to application, which answers with the same: all that was asked for before has been
// carried out or stopped, work may begin again, and the window is to close. No fields.
inline constexpr uint32 kQuitWhenDone = FourCharCode("awqd");

// File panels and desktop to application. Refs "refs"; the first only, but for kInsertFiles.
// kOpenFile: bool "reset", int32 "position"; bool "ask": about unsaved changes, before a reset;
// bool "panel": false for files that no panel delivered; string "video": which part of a video, as
// ParseVideoCut reads it.
inline constexpr uint32 kOpenFile = FourCharCode("aofp");
// Application to main window: the same command, of a video, without "video": the user is to say
// which part is wanted.
inline constexpr uint32 kAskAboutVideo = FourCharCode("wvid");
inline constexpr uint32 kInsertFiles = FourCharCode("aifp");  // int32 "position"
// Beside what the panel says, where the fields are there: int32 "tile_width", "tile_height",
// "margin", "spacing"; bool "skip_empty". A file ".json" describes a sheet, and nothing else
// counts.
inline constexpr uint32 kInsertTiledFile = FourCharCode("aitp");
// All refs, one after the other, behind the current frame; no other fields.
inline constexpr uint32 kInsertAnimations = FourCharCode("aiap");
// Main window to application: data "bytes" of string "type", a MIME type: frames, an animation or
// an image; int32 "position", or behind the current frame.
inline constexpr uint32 kPasteFrames = FourCharCode("apst");
// Save panel to application. Int64 "translator_id", ref "directory", string "name".
inline constexpr uint32 kSaveFile = FourCharCode("asfp");
// Int64 "translator_id", ref "directory", string "name"; int32 "columns" (0: a square of them),
// "padding"; bool "power_of_two".
inline constexpr uint32 kSaveSheet = FourCharCode("apsh");

// The program's start to application: offer what another editor has left. No fields. The
// application to itself: recover that. String "path".
inline constexpr uint32 kOfferRecovery = FourCharCode("aorc");
inline constexpr uint32 kRecover = FourCharCode("arcv");

// Main window to application. No fields but those named.
inline constexpr uint32 kSaveAgain = FourCharCode("asav");  // to the current file
inline constexpr uint32 kResetDocument = FourCharCode("arst");
inline constexpr uint32 kSelectFrame = FourCharCode("aslt");  // int32 "number"
inline constexpr uint32 kRemoveFrame = FourCharCode("awfr");
inline constexpr uint32 kMoveFrameUp = FourCharCode("awfu");
inline constexpr uint32 kMoveFrameDown = FourCharCode("awfd");
inline constexpr uint32 kReverseFrames = FourCharCode("awfv");
inline constexpr uint32 kUndo = FourCharCode("aweu");
inline constexpr uint32 kRedo = FourCharCode("awer");
inline constexpr uint32 kPreview = FourCharCode("awvp");

// Main window to application: string "frames", as ParseFrameSet has it, are the selected ones; that
// of them becomes current which is nearest to int32 "current", without that field to the frame that
// is.
inline constexpr uint32 kSelectFrames = FourCharCode("aslm");
// Main window to application: arrange the selected frames, or all where one is selected and one
// alone can't be arranged. Those of a row without fields have none.
// Int32 "position"; string "frames", as ParseFrameSet has it, in place of the selected ones.
inline constexpr uint32 kMoveFramesTo = FourCharCode("awmt");
inline constexpr uint32 kCopyFramesTo = FourCharCode("awct");
inline constexpr uint32 kDuplicateFrames = FourCharCode("awdu");  // to behind the last
inline constexpr uint32 kForwardAndBack = FourCharCode("awfb");
inline constexpr uint32 kRemoveDuplicates = FourCharCode("awrd");  // int32 "tolerance"
inline constexpr uint32 kDropEveryNth = FourCharCode("awdn");      // int32 "number"
inline constexpr uint32 kStartAtCurrent = FourCharCode("awsc");
// String "pause", as ParsePauseChange has it, for the selected frames, or string "frames", or all
// of them where bool "all" says so; bool "own": also for those with a pause of their own, which is
// the rule.
inline constexpr uint32 kSetPauses = FourCharCode("awsp");

// Main window to application: edits of the pictures of all frames, and of the canvas with them.
// Nothing happens where a field is missing or out of its bounds. Int32 "filter", a ScaleFilter.
inline constexpr uint32 kResizeAnimation = FourCharCode("aprs");  // int32 "width", "height"
// Int32 "left", "top", "width", "height", or int32 "trim": 0 to where all is transparent, 1 to what
// changes.
inline constexpr uint32 kCropAnimation = FourCharCode("apcr");
// Int32 "width", "height"; "anchor": 0 to 8, from the top left, row by row.
inline constexpr uint32 kSetCanvasSize = FourCharCode("apcs");
inline constexpr uint32 kRotateAnimation = FourCharCode("aprt");  // int32 "quarters": 1 to 3
inline constexpr uint32 kFlipAnimation = FourCharCode("apfl");    // bool "across"
// The same for edits of the pictures of the selected frames.
inline constexpr uint32 kFitFrames = FourCharCode("apft");  // int32 "fit", a Fit; int32 "filter"
// Int32 "brightness", "contrast", "saturation": -100 to 100; bool "greyscale". All may be missing.
inline constexpr uint32 kAdjustColors = FourCharCode("apac");
inline constexpr uint32 kSetOpacity = FourCharCode("apop");  // int32 "percent"
// Ref "refs": an image file; int32 "x", "y", "percent".
inline constexpr uint32 kOverlayImage = FourCharCode("apov");
// Data "image", a PNG file; int32 "x", "y"; int32 "fade_in", "fade_out": frames, or none.
inline constexpr uint32 kDrawText = FourCharCode("aptx");
// Int32 "color" (red, green, blue from the top byte on), "tolerance": 0 to 255.
inline constexpr uint32 kMakeTransparent = FourCharCode("apmt");

// Main window to application: edits of the document that panels ask for, with the value checked.
inline constexpr uint32 kSetWidth = FourCharCode("gvwd");        // int32 "value"
inline constexpr uint32 kSetHeight = FourCharCode("gvht");       // int32 "value"
inline constexpr uint32 kUsePause = FourCharCode("gvpa");        // bool "value"
inline constexpr uint32 kSetPauseLength = FourCharCode("gvpl");  // double "value"
inline constexpr uint32 kUseLoop = FourCharCode("gvlp");         // bool "value"
inline constexpr uint32 kSetLoopCount = FourCharCode("gvlc");    // int32 "value"
inline constexpr uint32 kPaletteToWebSafe = FourCharCode("pvwp");
inline constexpr uint32 kPaletteToSystem = FourCharCode("pvbp");
inline constexpr uint32 kPaletteToGreyscale = FourCharCode("pvgp");
inline constexpr uint32 kPaletteToFirstFrame = FourCharCode("pvfp");
inline constexpr uint32 kPaletteToCurrentFrame = FourCharCode("pvcp");
inline constexpr uint32 kPaletteToFile = FourCharCode("pvfi");        // the next opened file
inline constexpr uint32 kSetBackgroundIndex = FourCharCode("pvbk");   // int32 "value"
inline constexpr uint32 kUseTransparent = FourCharCode("pvtp");       // bool "value"
inline constexpr uint32 kSetTransparentIndex = FourCharCode("pvti");  // int32 "value"
inline constexpr uint32 kSetDither = FourCharCode("pvdi");            // bool "value"
inline constexpr uint32 kFrameSetXOffset = FourCharCode("lvxo");      // int32 "value"
inline constexpr uint32 kFrameSetYOffset = FourCharCode("lvyo");      // int32 "value"
inline constexpr uint32 kFrameUsePause = FourCharCode("lvps");        // bool "value"
inline constexpr uint32 kFrameSetPauseLength = FourCharCode("lvpl");  // double "value"
inline constexpr uint32 kFrameUsePalette = FourCharCode("lvlp");      // bool "value"
inline constexpr uint32 kFramePaletteToFile = FourCharCode("lvfp");   // the next opened file

// Windows to application: the settings (Prefs::AddTo) and where the main window stands (rect
// "window_frame"); they are taken over and written to the settings file.
inline constexpr uint32 kStoreSettings = FourCharCode("asts");

// Save panel to application: an image writer's settings. Int32 "translator", message "settings".
inline constexpr uint32 kTranslatorSettings = FourCharCode("atst");

// Menus and buttons to main window. No fields.
inline constexpr uint32 kMenuNew = FourCharCode("awfn");
inline constexpr uint32 kMenuOpen = FourCharCode("awfo");
inline constexpr uint32 kMenuSave = FourCharCode("awfs");
inline constexpr uint32 kMenuSaveAs = FourCharCode("awfa");
inline constexpr uint32 kToggleMode = FourCharCode("awvm");
inline constexpr uint32 kMenuPreferences = FourCharCode("awvr");
inline constexpr uint32 kMenuInsert = FourCharCode("awfi");
inline constexpr uint32 kMenuInsertTiled = FourCharCode("awit");
inline constexpr uint32 kMenuFadeEffects = FourCharCode("awfe");
inline constexpr uint32 kMenuInsertAnimation = FourCharCode("wian");
inline constexpr uint32 kMenuCut = FourCharCode("wcut");
inline constexpr uint32 kMenuCopy = FourCharCode("wcpy");
inline constexpr uint32 kMenuPaste = FourCharCode("wpst");
inline constexpr uint32 kMenuSelectAll = FourCharCode("wsal");
inline constexpr uint32 kMenuSelectNone = FourCharCode("wsno");  // but the current frame
inline constexpr uint32 kMenuInvertSelection = FourCharCode("wsiv");
inline constexpr uint32 kMenuSelectEvery = FourCharCode("wsev");
inline constexpr uint32 kMenuSelectRange = FourCharCode("wsrg");
inline constexpr uint32 kMenuGoToFrame = FourCharCode("wsgt");
inline constexpr uint32 kMenuSetPause = FourCharCode("wspa");
inline constexpr uint32 kMenuDropEvery = FourCharCode("wdev");
inline constexpr uint32 kMenuRemoveDuplicates = FourCharCode("wrdu");
inline constexpr uint32 kMenuMoveTo = FourCharCode("wmvt");
inline constexpr uint32 kMenuExport = FourCharCode("wpex");
inline constexpr uint32 kMenuExportSheet = FourCharCode("wpsh");
inline constexpr uint32 kMenuResize = FourCharCode("wprs");
inline constexpr uint32 kMenuCrop = FourCharCode("wpcr");
inline constexpr uint32 kMenuCanvasSize = FourCharCode("wpcs");
inline constexpr uint32 kMenuRotateRight = FourCharCode("wprr");
inline constexpr uint32 kMenuRotateLeft = FourCharCode("wprl");
inline constexpr uint32 kMenuFlipAcross = FourCharCode("wpfa");
inline constexpr uint32 kMenuFlipDown = FourCharCode("wpfd");
inline constexpr uint32 kMenuFitFrames = FourCharCode("wpft");
inline constexpr uint32 kMenuAdjustColors = FourCharCode("wpac");
inline constexpr uint32 kMenuOpacity = FourCharCode("wpop");
inline constexpr uint32 kMenuOverlay = FourCharCode("wpov");
inline constexpr uint32 kMenuText = FourCharCode("wptx");
inline constexpr uint32 kMenuMakeTransparent = FourCharCode("wpmt");

inline constexpr uint32 kShowPlayer = FourCharCode("wvpl");  // or hides it
inline constexpr uint32 kPlay = FourCharCode("wply");        // or pauses
inline constexpr uint32 kShowLabels = FourCharCode("wvlb");  // of the thumbnails, or hides them
inline constexpr uint32 kShowColors = FourCharCode("wvco");  // in a window

// Panels to main window. No fields; the window reads the control that sent the command.
inline constexpr uint32 kThumbnailMode = FourCharCode("lvtm");
inline constexpr uint32 kFrameListMode = FourCharCode("lvfm");
inline constexpr uint32 kThumbnailSlider = FourCharCode("tvsl");
inline constexpr uint32 kThumbnailCurrentHalf = FourCharCode("tvch");
inline constexpr uint32 kThumbnailCurrentFull = FourCharCode("tvcf");
inline constexpr uint32 kThumbnailFit = FourCharCode("tvft");  // as high as all of them fit
inline constexpr uint32 kFrameListSelection = FourCharCode("flsl");

// Thumbnails to themselves: the button is still held. Point "point": the grab offset.
inline constexpr uint32 kThumbnailDrag = FourCharCode("tdvd");

// Fade dialog to itself. No fields.
inline constexpr uint32 kFadeCount = FourCharCode("fwfc");
inline constexpr uint32 kFadeOk = FourCharCode("fwok");
inline constexpr uint32 kFadeCancel = FourCharCode("fwcn");

// Save panel to itself. No fields.
inline constexpr uint32 kSaveFormat = FourCharCode("asff");
inline constexpr uint32 kSaveFormatSettings = FourCharCode("asfs");

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
