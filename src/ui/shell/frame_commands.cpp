#include "ui/shell/frame_commands.h"

#include "document/command_codes.h"
#include "ui/dialogs/frames_dialogs.h"

namespace kirto {

void ChooseFrames(uint32 item, const ShownDocument& shown, QWidget* window,
                  const FormDialog::Receiver& receive) {
    const Animation& animation = shown.Current();
    const auto select = [&](const FrameSet& frames) {
        BMessage message(kSelectFrames);
        message.AddString("frames", TextOf(frames));
        receive(message);
    };
    switch (item) {
        case kMenuSelectAll:
            return select(FrameSet::AllOf(animation.frames.Size()));
        case kMenuSelectNone:
            return select({});
        case kMenuInvertSelection:
            return select(animation.Selection().Inverted(animation.frames.Size()));
        case kMenuSelectEvery:
            return AskForEveryNth(animation, window, receive);
        case kMenuSelectRange:
            return AskForRange(animation, window, receive);
        case kMenuDropEvery:
            return AskForDropping(animation, window, receive);
        case kMenuRemoveDuplicates:
            return AskForTolerance(animation, window, receive);
        case kMenuSetPause:
            return AskForPause(animation, shown.Settings().global_pauseinseconds, window, receive);
        default:
            break;
    }
}

}  // namespace kirto
