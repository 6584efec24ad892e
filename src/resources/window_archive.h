// The archive of a window: a message whose fields say what the window is, with a message for each
// of its views. Names of the fields, and what their numbers mean.
#pragma once

#include "base/types.h"

namespace kirto {

// Of windows and views.
inline constexpr char kArchiveClass[] = "class";   // string: the class to make
inline constexpr char kArchiveName[] = "_name";    // string: how code finds the view
inline constexpr char kArchiveFrame[] = "_frame";  // rect, in the parent's coordinates
inline constexpr char kArchiveViews[] = "_views";  // messages: the children, in tab order

// Of windows.
inline constexpr char kArchiveTitle[] = "_title";       // string
inline constexpr char kArchiveType[] = "_type";         // int32, one of the codes below
inline constexpr char kArchiveLook[] = "_wlook";        // int32
inline constexpr char kArchiveFeel[] = "_wfeel";        // int32
inline constexpr char kArchiveFlags[] = "_flags";       // int32, window flags
inline constexpr char kArchiveSizeLimits[] = "_sizel";  // floats: least and most width, then height

// Of windows, the framework's own.
inline constexpr char kArchiveFontHeight[] = "designfsize";  // float: of the layout's font, pixels
inline constexpr char kArchiveMinWidth[] = "minWidth";       // floats, distances between edges
inline constexpr char kArchiveMaxWidth[] = "maxWidth";
inline constexpr char kArchiveMinHeight[] = "minHeight";
inline constexpr char kArchiveMaxHeight[] = "maxHeight";
inline constexpr char kArchiveFrameworkFlags[] = "IEflags";  // int32, framework flags

// Of views.
inline constexpr char kArchiveLabel[] = "_label";         // string
inline constexpr char kArchiveMessage[] = "_msg";         // message: what a control sends
inline constexpr char kArchiveDivider[] = "_divide";      // float: where a labeled field begins
inline constexpr char kArchiveTabs[] = "_l_items";        // messages: the tabs of a tab view
inline constexpr char kArchiveTabViews[] = "_view_list";  // messages: what the tabs show

inline constexpr int32 kTitledWindow = 1;
inline constexpr int32 kModalWindow = 3;
inline constexpr int32 kTitledLook = 1;
inline constexpr int32 kNormalFeel = 0;
inline constexpr int32 kModalFeel = 1;
inline constexpr int32 kNotResizable = 0x02;
inline constexpr int32 kNotZoomable = 0x40;
inline constexpr int32 kCentered = 0x01;  // a framework flag: placed in the middle of its screen

}  // namespace kirto
