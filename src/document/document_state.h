#pragma once

#include <memory>
#include <string>

#include "animation/animation.h"
#include "platform/types.h"
#include "settings/prefs.h"

namespace kirto {

// Everything about the open document at one moment. Constant once published, so that any thread
// may keep and read it.
struct DocumentState {
    std::shared_ptr<const Animation> animation;  // never null
    std::string file_name = "untitled";          // at most 255 bytes
    std::string file_directory;                  // empty before a save or an open
    bool modified = false;                       // changed since the last reset, open or save
    // The serial number of the last edit of a window's that is carried out. A window that numbers
    // its edits knows by it which of them the animation does not show yet.
    int32 edits_done = 0;
    std::string undo_name;  // of the edit that would be undone or redone; empty when there is none
    std::string redo_name;
    std::shared_ptr<const Prefs> settings;  // never null
};

}  // namespace kirto
