#pragma once

#include <string>
#include <vector>

#include "animation/save_differences.h"
#include "base/types.h"
#include "document/animation_document.h"

namespace kirto {

// A button of a notice.
struct NoticeButton {
    const char* label;
    uint32 command;
};

// What shows a notice when the main window receives it.
BMessage MakeNotice(const std::string& text, const std::vector<NoticeButton>& buttons);

// What the main window says quietly, one notice in place of the other. Used on the application's
// thread.
class Notices {
  public:
    enum class Kind {
        kNone,
        kOpened,    // an animation took the document's place
        kInserted,  // one was inserted
        kLarger,    // frames are larger than the canvas
        kSaved      // a saved file shows something else than the window
    };

    // The document, whose window is told, outlives this.
    explicit Notices(const AnimationDocument& document) : document_(document) {}

    // The one that was shown last and not hidden here; the user may have closed it.
    Kind Shown() const { return shown_; }

    // An animation was opened as browsers do, which can be undone.
    void ShowOpened(bool inserted);
    // So many frames are larger than the canvas, which may be mended.
    void ShowLarger(int32 frames);
    void ShowDifferences(const SaveDifferences& differences);
    void Hide();
    // Once something else has changed, the opening can't be undone.
    void HideOpened();
    // Once no frame is larger any more.
    void HideLarger();

  private:
    void Show(Kind kind, const std::string& text, const std::vector<NoticeButton>& buttons);

    const AnimationDocument& document_;
    Kind shown_ = Kind::kNone;
};

}  // namespace kirto
