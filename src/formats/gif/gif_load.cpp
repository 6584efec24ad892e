#include "formats/gif/gif_load.h"

#include "base/debug_line.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "formats/gif/gif_ahead.h"

using End = kirto::GifPiece::End;

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
    if (!failed) ReadFrames();
}

void GifLoad::Init() {
    document_.Change([](kirto::Animation& animation) {
        animation.pause_length = 0;
        animation.use_pause = false;
        animation.use_loop = false;
    });
}

bool GifLoad::ReadScreen() {
    if (!parser_.ReadGifHeader(&screen_)) return false;
    composer_.SetScreen(screen_);
    document_.Change([this](kirto::Animation& animation) {
        animation.width = screen_.width;
        animation.height = screen_.height;
    });
    CommitPalette();
    return screen_.table.complete;
}

void GifLoad::ReadFrames() {
    kirto::GifReader reader(parser_);
    // The n-th allocation is a particular one only as long as one thread allocates.
    const bool together = kirto::ThreadCount() > 1 && !kirto::LentAllocationFault();
    kirto::GifAhead ahead(reader, screen_,
                          {document_.prefs.animation_gifloadfullframe,
                           composer_.GlobalPalette().use_transparent, together},
                          document_.work);
    kirto::OrderedSteps<kirto::GifAhead::Batch, kirto::GifAhead::Decoded> steps;
    steps.next = [&ahead] { return ahead.Next(); };
    steps.begin = [this](const kirto::GifAhead::Batch& batch) {
        BeginPiece(batch.front());
        return true;
    };
    steps.work = [&ahead](const kirto::GifAhead::Batch& batch, int32) {
        return ahead.Decode(batch);
    };
    steps.waiting = [this] { document_.work.ReportAgain(); };
    steps.take = [this, &ahead](const kirto::GifAhead::Batch& batch,
                                std::optional<kirto::GifAhead::Decoded> decoded) {
        for (size_t i = 0; i < batch.size(); ++i) {
            if (i > 0) BeginPiece(batch[i]);
            const bool has_room = decoded && (*decoded)[i].room > 0;
            if (!TakePiece(batch[i], has_room ? &(*decoded)[i] : nullptr)) return false;
            if (decoded) ahead.TakeBack(std::move((*decoded)[i]));
        }
        return true;
    };
    kirto::RunInOrder(steps);
}

void GifLoad::BeginPiece(const kirto::GifPiece& piece) {
    for (const kirto::GifPiece::Block& block : piece.blocks) {
        if (!block.lines.empty()) kirto::DebugLine("%s", block.lines.c_str());
        if (block.control) TakeControl(*block.control);
        if (block.loop_count) TakeLoop(*block.loop_count);
    }
    if (piece.end == End::kImage || piece.end == End::kBrokenImage)
        document_.PostStatus(kirto::Format("Status: loading frame %d...", next_position_ + 1));
}

bool GifLoad::TakePiece(const kirto::GifPiece& piece, kirto::GifIndices* ahead) {
    if (piece.end == End::kTrailer) return false;
    if (piece.end == End::kMore) return true;
    failed = piece.end != End::kImage || !TakeImage(piece.image, ahead);
    return !failed;
}

void GifLoad::TakeLoop(int32 loop_count) {
    document_.Change([loop_count](kirto::Animation& animation) {
        animation.use_loop = true;
        animation.loop_count = loop_count;
    });
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

bool GifLoad::TakeImage(const kirto::GifImage& image, kirto::GifIndices* ahead) {
    const status_t status =
        composer_.Compose(image, ahead, input_.Size(), &frame_, local_palette_.get());
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
