#include "ui/shell/frame_commands.h"

#include <optional>

#include "document/command_codes.h"
#include "ui/dialogs/frames_dialogs.h"
#include "ui/dialogs/picture_area_dialogs.h"
#include "ui/dialogs/picture_dialogs.h"
#include "ui/dialogs/text_dialog.h"

namespace kirto {

namespace {

struct DialogRow {
    uint32 item;
    void (*ask)(const Animation& shown, QWidget* parent, FormDialog::Receiver receive);
};

constexpr DialogRow kDialogs[] = {
    {kMenuSelectEvery, AskForEveryNth},
    {kMenuSelectRange, AskForRange},
    {kMenuGoToFrame, AskForFrame},
    {kMenuDropEvery, AskForDropping},
    {kMenuRemoveDuplicates, AskForTolerance},
    {kMenuMoveTo, AskForPlace},
    {kMenuResize, AskForSize},
    {kMenuCrop, AskForCrop},
    {kMenuCanvasSize, AskForCanvas},
    {kMenuFitFrames, AskForFit},
    {kMenuAdjustColors, AskForColors},
    {kMenuOpacity, AskForOpacity},
    {kMenuOverlay, AskForOverlay},
    {kMenuText, AskForText},
    {kMenuMakeTransparent, AskForTransparentColor},
};

// Null for items without a dialog.
auto DialogOf(uint32 item) -> decltype(DialogRow::ask) {
    for (const DialogRow& row : kDialogs) {
        if (row.item == item) return row.ask;
    }
    return nullptr;
}

std::optional<BMessage> TurnBy(uint32 item) {
    constexpr int32 kRight = 1;
    constexpr int32 kLeft = 3;
    BMessage rotate(kRotateAnimation);
    BMessage flip(kFlipAnimation);
    if (item == kMenuRotateRight || item == kMenuRotateLeft) {
        rotate.AddInt32("quarters", item == kMenuRotateRight ? kRight : kLeft);
        return rotate;
    }
    if (item != kMenuFlipAcross && item != kMenuFlipDown) return std::nullopt;
    flip.AddBool("across", item == kMenuFlipAcross);
    return flip;
}

}  // namespace

void ChooseFrames(uint32 item, const ShownDocument& shown, QWidget* window,
                  const FormDialog::Receiver& receive) {
    const Animation& animation = shown.Current();
    const auto select = [&](const FrameSet& frames) {
        BMessage message(kSelectFrames);
        message.AddString("frames", TextOf(frames));
        receive(message);
    };
    if (const auto turn = TurnBy(item)) return receive(*turn);
    if (const auto ask = DialogOf(item)) return ask(animation, window, receive);
    switch (item) {
        case kMenuSelectAll:
            return select(FrameSet::AllOf(animation.frames.Size()));
        case kMenuSelectNone:
            return select({});
        case kMenuInvertSelection:
            return select(animation.Selection().Inverted(animation.frames.Size()));
        case kMenuSetPause:
            return AskForPause(animation, shown.Settings().global_pauseinseconds, window, receive);
        default:
            break;
    }
}

}  // namespace kirto
