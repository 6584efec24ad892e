#include "formats/gif/gif_load.h"

#include "base/core_text.h"
#include "base/debug_line.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "formats/gif/gif_ahead.h"
#include "formats/gif/gif_browser_composer.h"
#include "formats/gif/gif_defined_composer.h"

using End = kirto::GifPiece::End;

namespace {

std::unique_ptr<kirto::GifComposer> ComposerFor(kirto::GifRules rules,
                                                AnimationDocument& document) {
    const Palette& palette = *document.Current()->palette;
    if (rules == kirto::GifRules::kBrowsers) {
        return std::make_unique<kirto::GifBrowserComposer>(palette, document.pixel_budget,
                                                           document.work);
    }
    const kirto::GifDefinedComposer::Options options{document.prefs.animation_gifloadfullframe,
                                                     document.prefs.thumbnail_drawtransparent};
    return std::make_unique<kirto::GifDefinedComposer>(options, palette, document.pixel_budget,
                                                       document.work);
}

}  // namespace

GifLoad::GifLoad(BFile* file, int32 start, AnimationDocument& document)
    : document_(document),
      input_(*file, document.work),
      rules_(document.prefs.animation_faithful ? kirto::GifRules::kBrowsers
                                               : kirto::GifRules::kDefined),
      parser_(input_, document.pixel_budget->Left() + kirto::PixelBudget::kWorkingRoom, rules_),
      composer_(ComposerFor(rules_, document)),
      start_(start),
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
    composer_->SetScreen(screen_);
    CommitSize();
    CommitPalette();
    return screen_.table.complete;
}

void GifLoad::ReadFrames() {
    kirto::GifReader reader(parser_);
    // The n-th allocation is a particular one only as long as one thread allocates.
    const bool together = kirto::ThreadCount() > 1 && !kirto::LentAllocationFault();
    const bool full_frame =
        rules_ == kirto::GifRules::kBrowsers || document_.prefs.animation_gifloadfullframe;
    kirto::GifAhead ahead(reader, *composer_, screen_,
                          {full_frame, composer_->GlobalPalette().use_transparent, together},
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
        document_.PostStatus(CoreText::With(CoreText::tr("Status: loading frame %1..."),
                                            {std::to_string(next_position_ + 1)}));
}

bool GifLoad::TakePiece(const kirto::GifPiece& piece, kirto::GifIndices* ahead) {
    if (piece.end == End::kTrailer) return false;
    if (piece.end == End::kMore) return true;
    damaged_ = piece.end != End::kImage;
    if (piece.end == End::kNoTrailer && next_position_ > start_)
        harmless_cause = kirto::HarmlessCause::kMissingTrailer;
    const bool goes_on = !damaged_ && TakeImage(piece.image, ahead);
    failed = !goes_on && !MayEndHere();
    return goes_on;
}

// Browsers show what there is before the damage, as if the file were not longer.
bool GifLoad::MayEndHere() const {
    return rules_ == kirto::GifRules::kBrowsers && damaged_ && next_position_ > start_ &&
           !document_.StopRequested();
}

void GifLoad::TakeLoop(int32 loop_count) {
    document_.Change([loop_count](kirto::Animation& animation) {
        animation.use_loop = true;
        animation.loop_count = loop_count;
    });
}

void GifLoad::TakeControl(const kirto::GifControl& control) {
    composer_->SetControl(control);
    if (control.transparent_index >= 0) CommitPalette();
    frame_.pause_length = control.delay;
    if (rules_ == kirto::GifRules::kDefined) frame_.use_pause = control.delay != 0;
}

void GifLoad::CommitSize() {
    document_.Change([this](kirto::Animation& animation) {
        animation.width = composer_->Width();
        animation.height = composer_->Height();
    });
}

void GifLoad::CommitPalette() {
    document_.Change([this](kirto::Animation& animation) {
        animation.palette = std::make_shared<const Palette>(composer_->GlobalPalette());
    });
}

bool GifLoad::TakeImage(const kirto::GifImage& image, kirto::GifIndices* ahead) {
    const status_t status =
        composer_->Compose(image, ahead, input_.Size(), &frame_, local_palette_.get());
    out_of_memory = status == B_NO_MEMORY;
    damaged_ = status == B_BAD_DATA;
    if (damaged_) harmless_cause = composer_->Cause();
    if (status != B_OK) return false;
    // The first image may have made the screen larger.
    const std::shared_ptr<const kirto::Animation> animation = document_.Current();
    if (composer_->Width() != animation->width || composer_->Height() != animation->height)
        CommitSize();
    if (!FinishFrame()) return false;
    ++next_position_;
    if (StartFrame()) return true;
    kirto::DebugLine("GifLoad::GifLoad() - Out of memory\n");
    return false;
}

bool GifLoad::StartFrame() {
    frame_ = Frame(kirto::Format("frame%04d", next_position_), 0, 0);
    // To browsers a pause of 0 is a frame's own like any other.
    frame_.use_pause = rules_ == kirto::GifRules::kBrowsers;
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
