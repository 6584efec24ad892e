#pragma once

#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "animation/animation.h"

namespace kirto {

// What a step of the history restores.
struct Moment {
    std::shared_ptr<const Animation> animation;  // never null
    std::string file_name;
    std::string file_directory;
};

// The edits of a document that can be undone and redone, each with the moments before and after it.
// Moments share all that they have in common. Thread-safe: the document's thread makes history, and
// any thread that needs pixels may drop steps.
class History {
  public:
    struct Step {
        std::string name;  // of the edit, as the menu shows it: "Remove Frame"
        Moment before;
        Moment after;
    };

    // Adds an edit that has just been made. Drops the edits that were undone.
    void Record(Step step);
    // Adds an edit to the last step, whose "after" it replaces.
    void Extend(Moment after);
    // Mark the next edit as undone or redone and return it; empty when there is none.
    std::optional<Step> Undo();
    std::optional<Step> Redo();
    // How many edits can be undone.
    size_t UndoSteps() const;
    // Names of those edits; empty when there are none.
    std::string UndoName() const;
    std::string RedoName() const;

    // MarkSaved: the document has just been saved. IsAtSaved: it is in its saved state.
    void MarkSaved();
    bool IsAtSaved() const;

    // Forgets everything; the document counts as saved.
    void Clear();
    // The document has a saved state no longer, or never had one.
    void ForgetSaved();
    // Forgets the oldest step, or, when none can be undone, the last that could be redone. Returns
    // false when there is nothing to forget.
    bool DropOne();

  private:
    mutable std::mutex mutex_;  // guards everything below
    std::deque<Step> steps_;
    size_t done_ = 0;  // how many of them are in effect; the others are undone
    // The value of done_ at the last save; empty when that state can't be reached anymore.
    std::optional<size_t> saved_ = 0;
};

}  // namespace kirto
