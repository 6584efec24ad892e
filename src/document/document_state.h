#pragma once

#include <memory>
#include <string>

#include "animation/animation.h"
#include "base/types.h"
#include "settings/prefs.h"

namespace kirto {

inline constexpr size_t kMaxFileNameBytes = 255;

// Everything about the open document at one moment. Never changes once published, so any thread may
// keep and read it.
struct DocumentState {
    std::shared_ptr<const Animation> animation;  // never null
    std::string file_name = "untitled";          // at most kMaxFileNameBytes
    std::string file_directory;                  // empty before a save or an open
    bool modified = false;                       // changed since the last reset, open or save
    int32 undo_steps = 0;                        // how many edits can be undone
    std::string undo_name;  // of the edit that would be undone or redone; empty when there is none
    std::string redo_name;
    std::shared_ptr<const Prefs> settings;  // never null
};

}  // namespace kirto
