#include "app/notices.h"

#include "base/core_text.h"
#include "base/text.h"
#include "document/command_codes.h"

namespace kirto {

BMessage MakeNotice(const std::string& text, const std::vector<NoticeButton>& buttons) {
    BMessage message(kShowNotice);
    message.AddString("text", text);
    for (const NoticeButton& button : buttons) {
        message.AddString("button", button.label);
        message.AddInt32("command", static_cast<int32>(button.command));
    }
    return message;
}

void Notices::ShowOpened(bool inserted) {
    Show(inserted ? Kind::kInserted : Kind::kOpened,
         CoreText::Later(
             "Opened as browsers do. Animations are read and saved that way from now on."),
         {{CoreText::Later("Undo"), kUndoOpening}, {CoreText::Later("Close"), kCloseNotice}});
}

void Notices::ShowLarger(int32 frames) {
    Show(Kind::kLarger,
         CoreText::With(CoreText::tr("%1 frame(s) are larger than the animation."),
                        {std::to_string(frames)}),
         {{CoreText::Later("Scale"), kScaleLargerFrames},
          {CoreText::Later("Crop"), kCropLargerFrames},
          {CoreText::Later("Close"), kCloseNotice}});
}

void Notices::ShowDifferences(const SaveDifferences& differences) {
    std::string text;
    for (const std::string& sentence : differences.Sentences())
        text += (text.empty() ? "" : "; ") + sentence;
    std::vector<NoticeButton> buttons = {{CoreText::Later("Save Faithfully"), kSaveFaithfully},
                                         {CoreText::Later("Close"), kCloseNotice}};
    // Where the pictures are the same there is nothing to see.
    if (!differences.pairs.empty())
        buttons.insert(buttons.begin() + 1, {CoreText::Later("Show"), kShowDifferences});
    Show(Kind::kSaved, CoreText::With(CoreText::tr("In browsers %1."), {text}), buttons);
}

void Notices::Show(Kind kind, const std::string& text, const std::vector<NoticeButton>& buttons) {
    document_.window.SendMessage(MakeNotice(text, buttons));
    shown_ = kind;
}

void Notices::Hide() {
    if (shown_ != Kind::kNone) document_.PostToWindow(kHideNotice);
    shown_ = Kind::kNone;
}

void Notices::HideLarger() {
    if (shown_ == Kind::kLarger) Hide();
}

void Notices::HideOpened() {
    if (shown_ == Kind::kOpened || shown_ == Kind::kInserted) Hide();
}

}  // namespace kirto
