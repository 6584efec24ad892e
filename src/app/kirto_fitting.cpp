// What the application object does about frames that are larger than the canvas.
#include "app/kirto.h"
#include "app/picture_commands.h"
#include "document/command_codes.h"

namespace {

kirto::FrameSet LargerFrames(const kirto::Animation& animation) {
    kirto::FrameSet larger;
    int32 position = 0;
    for (const kirto::FramePointer& frame : animation.frames) {
        if (frame->width > animation.width || frame->height > animation.height)
            larger.Add({position, position});
        ++position;
    }
    return larger;
}

}  // namespace

// A save would refuse them.
void Kirto::TellOfLargerFrames() {
    const kirto::FrameSet larger = LargerFrames(*Current());
    if (!larger.Empty()) {
        notices_.ShowLarger(larger.Count());
    } else {
        notices_.HideLarger();
    }
}

void Kirto::FitLargerFrames(kirto::Fit fit) {
    const auto before = Current();
    kirto::Animation chosen = *before;
    kirto::SelectFrames(chosen, LargerFrames(*before), before->selected);
    Commit(std::move(chosen));
    BMessage message(kirto::kFitFrames);
    message.AddInt32("fit", static_cast<int32>(fit));
    message.AddInt32("filter", static_cast<int32>(kirto::ScaleFilter::kLanczos));
    last_word_ = kirto::ApplyPictureEdit(*this, message, roster_);
    AnimationDocument::Change([&before](kirto::Animation& animation) {
        animation.selected = before->selected;
        animation.several = before->several;
    });
    TellOfLargerFrames();
}
