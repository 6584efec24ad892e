#include "ui/global_view.h"

#include <QGridLayout>

#include "document/command_codes.h"
#include "ui/panel_layout.h"

GlobalView::GlobalView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : QGroupBox("Global", parent), shown_(shown) {
    setObjectName("GlobalView");
    width = kirto::MakeField("Width", kirto::kSetWidth, window, this);
    height = kirto::MakeField("Height", kirto::kSetHeight, window, this);
    pause = kirto::MakeCheckBox("Pause", "Use pause:", kirto::kUsePause, window, this);
    pause_length = kirto::MakeField("Pause length", kirto::kSetPauseLength, window, this);
    loop = kirto::MakeCheckBox("Loop", "Use loop:", kirto::kUseLoop, window, this);
    loop_count = kirto::MakeField("Loop count", kirto::kSetLoopCount, window, this);

    width->SetText("0");
    height->SetText("0");
    pause_length->SetText("100");
    loop_count->SetText("0");
    width->setToolTip("Width of the animation in pixels");
    height->setToolTip("Height of the animation in pixels");
    pause->setToolTip("Pause after every frame that has no pause of its own");
    pause_length->setToolTip("Length of the pause, in the unit chosen in the preferences");
    loop->setToolTip("Play the animation more than once");
    loop_count->setToolTip("How many times to play the animation; 0 = forever");

    auto* layout = new kirto::PanelLayout(this);
    layout->AddField("Width:", width);
    layout->AddField("Height:", height);
    layout->AddField(pause, pause_length);
    layout->AddField(loop, loop_count);
}

void GlobalView::UpdateDisplay() {
    const kirto::Animation& animation = shown_.Current();
    width->ShowText(QString::number(animation.width));
    height->ShowText(QString::number(animation.height));
    pause->setChecked(animation.use_pause);
    pause_length->setEnabled(animation.use_pause);
    pause_length->ShowText(QString::number(animation.pause_length, 'f', 2));
    loop->setChecked(animation.use_loop);
    loop_count->setEnabled(animation.use_loop);
    loop_count->ShowText(QString::number(animation.loop_count));
}

void GlobalView::ResetDisplay() {
    const Prefs& prefs = shown_.Settings();
    width->SetText(QString::number(prefs.global_width));
    height->SetText(QString::number(prefs.global_height));
    pause->setChecked(prefs.global_usepause);
    pause_length->setEnabled(prefs.global_usepause);
    pause_length->SetText(QString::number(prefs.global_pauselength, 'f', 2));
    loop->setChecked(prefs.global_useloop);
    loop_count->setEnabled(prefs.global_useloop);
    loop_count->SetText(QString::number(prefs.global_loopcount));
}
