#include "ui/panels/global_view.h"

#include "document/command_codes.h"

GlobalView::GlobalView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : FieldPanel("GlobalView", "Global", shown, window, parent) {
    width = AddNumber(kirto::kSetWidth, Unit::kPixels, "Width of the animation in pixels");
    height = AddNumber(kirto::kSetHeight, Unit::kPixels, "Height of the animation in pixels");
    pause = MakeSwitch(kirto::kUsePause, "Pause after every frame that has no pause of its own",
                       "Use pause:");
    pause_length = AddNumber(kirto::kSetPauseLength, Unit::kPause,
                             "Length of the pause, in the unit chosen in the preferences", pause);
    AddPauseText();
    loop = MakeSwitch(kirto::kUseLoop, "Play the animation more than once", "Use loop:");
    loop_count = AddNumber(kirto::kSetLoopCount, Unit::kNone,
                           "How many times to play the animation; 0 = forever", loop);
    pause_length->SetText("100");
}
