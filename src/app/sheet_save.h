#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/animation_document.h"
#include "effects/pictures/cut_picture.h"
#include "formats/sheet/sheet_description.h"
#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// Writes frames side by side into one picture, and a JSON text beside it that says where each is
// and how long it is shown. Of a frame that overhangs the canvas, what is on it; of one that has
// nothing there, a transparent pixel. Used once, by the application's thread.
class SheetSave {
  public:
    struct Layout {
        int32 columns = 0;          // 0: about as many as rows
        int32 padding = 0;          // pixels between the frames, 0 or more
        bool power_of_two = false;  // the sides of the sheet
    };
    // How the picture is written.
    struct Encoding {
        translator_id translator = 0;
        uint32 format = 0;
        BMessage settings;
    };

    // The most pixels that a side may have.
    static constexpr int64 kMostPixelsOfASide = 32767;

    // The document and the roster outlive this. frames: those of the current animation, with rows.
    SheetSave(AnimationDocument& document, BTranslatorRoster& roster, Encoding encoding,
              const FrameSet& frames, const Layout& layout);

    // To that path, and to the one with ".json" in place of its extension; both are replaced as a
    // whole or not at all, the text after the picture. B_CANCELED when the work was stopped; any
    // other failure is told to the user.
    status_t Save(const std::string& path);

  private:
    void Arrange(const FrameSet& frames, const Layout& layout);
    SheetFrame DescriptionOf(const Frame& frame) const;
    // Null after telling the user that there is no memory, and when the work was stopped.
    std::shared_ptr<BBitmap> Draw() const;
    bool DrawFrame(size_t i, BBitmap& sheet) const;
    status_t WriteText(const std::string& path) const;

    AnimationDocument& document_;
    BTranslatorRoster& roster_;
    const Encoding encoding_;
    const std::shared_ptr<const Animation> animation_;
    std::vector<FramePointer> frames_;
    SheetDescription sheet_;
    int64 width_ = 0;  // of the sheet, whatever that is
    int64 height_ = 0;
};

}  // namespace kirto
