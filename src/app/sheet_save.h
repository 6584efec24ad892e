#pragma once

#include <string>

#include "app/export/sheet_drawing.h"
#include "document/animation_document.h"
#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// Writes frames side by side into one picture, and a JSON text beside it that says where each is
// and how long it is shown, as SheetDrawing makes both. Used once, by the application's thread.
class SheetSave {
  public:
    // How the picture is written.
    struct Encoding {
        translator_id translator = 0;
        uint32 format = 0;
        BMessage settings;
    };

    // The document and the roster outlive this. frames: those of the current animation, with rows.
    SheetSave(AnimationDocument& document, BTranslatorRoster& roster, Encoding encoding,
              const FrameSet& frames, const SheetDrawing::Layout& layout);

    // To that path, and to the one with ".json" in place of its extension; both are replaced as a
    // whole or not at all, the text after the picture. B_CANCELED when the work was stopped; any
    // other failure is told to the user.
    status_t Save(const std::string& path);

  private:
    status_t WriteText(const std::string& path) const;

    AnimationDocument& document_;
    BTranslatorRoster& roster_;
    const Encoding encoding_;
    const SheetDrawing drawing_;
};

}  // namespace kirto
