#include "formats/gif/gif_load.h"

#include "base/debug_line.h"
#include "base/text.h"

using Block = kirto::GifParser::Block;

GifLoad::GifLoad(BFile* file, int32 start, AnimationDocument& document)
    : document_(document),
      input_(*file, document.work),
      parser_(input_, document.pixel_budget->Left() + kirto::PixelBudget::kWorkingRoom),
      composer_(
          {document.prefs.animation_gifloadfullframe, document.prefs.thumbnail_drawtransparent},
          *document.Current()->palette, document.pixel_budget, document.work),
      next_position_(start) {
    Init();
    failed = !ReadScreen() || !StartFrame();
    while (!failed && ReadBlock()) {
    }
}

void GifLoad::Init() {
    document_.Change([](kirto::Animation& animation) {
        animation.pause_length = 0;
        animation.use_pause = false;
        animation.use_loop = false;
    });
}

bool GifLoad::ReadScreen() {
    kirto::GifScreen screen;
    if (!parser_.ReadGifHeader(&screen)) return false;
    composer_.SetScreen(screen);
    document_.Change([&screen](kirto::Animation& animation) {
        animation.width = screen.width;
        animation.height = screen.height;
    });
    CommitPalette();
    return screen.table.complete;
}

bool GifLoad::ReadBlock() {
    kirto::GifControl control;
    int32 loop_count = 0;
    switch (parser_.ReadBlock(&control, &loop_count)) {
        case Block::kControl:
            TakeControl(control);
            return true;
        case Block::kLoop:
            document_.Change([loop_count](kirto::Animation& animation) {
                animation.use_loop = true;
                animation.loop_count = loop_count;
            });
            return true;
        case Block::kImageStart:
            failed = !ReadImage();
            return !failed;
        case Block::kOther:
            return true;
        case Block::kTrailer:
            return false;
        case Block::kBroken:
            break;
    }
    failed = true;
    return false;
}

void GifLoad::TakeControl(const kirto::GifControl& control) {
    composer_.SetControl(control);
    if (control.transparent_index >= 0) CommitPalette();
    frame_.pause_length = control.delay;
    frame_.use_pause = control.delay != 0;
}

void GifLoad::CommitPalette() {
    document_.Change([this](kirto::Animation& animation) {
        animation.palette = std::make_shared<const Palette>(composer_.GlobalPalette());
    });
}

bool GifLoad::ReadImage() {
    document_.PostStatus(kirto::Format("Status: loading frame %d...", next_position_ + 1));
    if (!parser_.ReadImage(&image_)) return false;
    const status_t status = composer_.Compose(image_, input_.Size(), &frame_, local_palette_.get());
    out_of_memory = status == B_NO_MEMORY;
    if (status != B_OK || !FinishFrame()) return false;
    ++next_position_;
    if (StartFrame()) return true;
    kirto::DebugLine("GifLoad::GifLoad() - Out of memory\n");
    return false;
}

bool GifLoad::StartFrame() {
    frame_ = Frame(kirto::Format("frame%04d", next_position_), 0, 0);
    local_palette_ = kirto::SharePalette();
    out_of_memory = !local_palette_;
    return !out_of_memory;
}

// Gives the frame its palette, and the document the frame.
bool GifLoad::FinishFrame() {
    const kirto::Picture* picture = frame_.bitmap.get();
    if (frame_.local_palette) {
        local_palette_->unique_colors = local_palette_->CountUniqueColors(picture, &document_.work);
    } else {
        local_palette_->Set(picture, &document_.work);
    }
    if (document_.StopRequested()) return false;
    frame_.palette = std::move(local_palette_);
    return document_.InsertFrame(next_position_, std::move(frame_));
}
