#pragma once

#include <deque>
#include <memory>
#include <string>

#include "animation/animation.h"

namespace kirto {

// What a step of the history brings back.
struct Moment {
    std::shared_ptr<const Animation> animation;  // never null
    std::string file_name;
    std::string file_directory;
};

// The edits of a document that can be undone and redone, each with the moments before and after
// it. Moments share all that they have in common. A plain value; the document's thread keeps it.
class History {
  public:
    struct Step {
        std::string name;  // of the edit, as the menu shows it: "Remove Frame"
        Moment before;
        Moment after;
    };

    // Adds an edit that has just been made. What was undone can't be redone any more.
    void Record(Step step);
    // Makes an edit part of the last step, whose "after" becomes this.
    void Extend(Moment after);
    // The edit to be undone or redone, which then counts as that; null when there is none. Valid
    // until the history changes.
    const Step* Undo();
    const Step* Redo();
    // Names of those edits; empty when there are none.
    std::string UndoName() const;
    std::string RedoName() const;

    // The document is saved as it is now; and whether it stands where it was saved last.
    void MarkSaved() { saved_ = static_cast<std::ptrdiff_t>(done_); }
    bool IsAtSaved() const { return saved_ == static_cast<std::ptrdiff_t>(done_); }

    // Forgets everything; the document counts as saved.
    void Clear();
    // Forgets the oldest step, or, when none can be undone, the last that could be redone. False
    // when there is none.
    bool DropOne();

  private:
    static constexpr std::ptrdiff_t kNever = -1;

    std::deque<Step> steps_;
    size_t done_ = 0;           // so many of them are made, the others are undone
    std::ptrdiff_t saved_ = 0;  // so many were made at the last save; kNever: none of those left
};

}  // namespace kirto
