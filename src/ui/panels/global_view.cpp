#include "ui/panels/global_view.h"

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

GlobalView::GlobalView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : FieldPanel("GlobalView", UiText::tr("Global"), shown, window, parent) {
    width =
        AddNumber(kirto::kSetWidth, Unit::kPixels, UiText::tr("Width of the animation in pixels"));
    height = AddNumber(kirto::kSetHeight, Unit::kPixels,
                       UiText::tr("Height of the animation in pixels"));
    pause = MakeSwitch(kirto::kUsePause,
                       UiText::tr("Pause after every frame that has no pause of its own"),
                       UiText::tr("Use pause:"));
    pause_length =
        AddNumber(kirto::kSetPauseLength, Unit::kPause,
                  UiText::tr("Length of the pause, in the unit chosen in the preferences"), pause);
    AddPauseText();
    loop = MakeSwitch(kirto::kUseLoop, UiText::tr("Play the animation more than once"),
                      UiText::tr("Use loop:"));
    loop_count = AddNumber(kirto::kSetLoopCount, Unit::kNone,
                           UiText::tr("How many times to play the animation; 0 = forever"), loop);
    pause_length->SetText("100");
}
