#include "formats/gif/gif_load.h"

#include "base/debug_line.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "formats/gif/gif_browser_composer.h"
#include "formats/gif/gif_defined_composer.h"

using End = kirto::GifPiece::End;

namespace {

// Larger images are decoded when it is their turn, one at a time.
constexpr uint64 kMostAhead = uint64{16} << 20;

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
    kirto::GifScreen screen;
    if (!parser_.ReadGifHeader(&screen)) return false;
    composer_->SetScreen(screen);
    CommitSize();
    CommitPalette();
    return screen.table.complete;
}

void GifLoad::ReadFrames() {
    kirto::GifReader reader(parser_);
    kirto::OrderedSteps<kirto::GifPiece, kirto::GifIndices> steps;
    steps.next = [&reader] { return reader.Next(); };
    steps.begin = [this](const kirto::GifPiece& piece) { return BeginPiece(piece); };
    steps.work = [this](const kirto::GifPiece& piece, int32) { return DecodeAhead(piece); };
    steps.waiting = [this] { document_.work.ReportAgain(); };
    steps.take = [this](const kirto::GifPiece& piece, std::optional<kirto::GifIndices> ahead) {
        return TakePiece(piece, ahead && ahead->room > 0 ? &*ahead : nullptr);
    };
    kirto::RunInOrder(steps);
}

// On any thread. Without room where the image is not to be decoded yet, or not at all.
std::optional<kirto::GifIndices> GifLoad::DecodeAhead(const kirto::GifPiece& piece) const {
    kirto::GifIndices indices;
    const kirto::GifImage& image = piece.image;
    const uint64 size = static_cast<uint64>(image.width) * static_cast<uint64>(image.height);
    if (piece.end != End::kImage || size == 0 || size > kMostAhead) return indices;
    if (image.data.too_large || !image.table.complete) return indices;
    const std::optional<int32> code_size = composer_->CodeSizeOf(image);
    if (!code_size) return indices;
    if (!indices.Reserve(image)) return std::nullopt;
    indices.Decode(image, *code_size, document_.work, 0);
    return indices;
}

bool GifLoad::BeginPiece(const kirto::GifPiece& piece) {
    for (const kirto::GifPiece::Block& block : piece.blocks) {
        if (!block.lines.empty()) kirto::DebugLine("%s", block.lines.c_str());
        if (block.control) TakeControl(*block.control);
        if (block.loop_count) TakeLoop(*block.loop_count);
    }
    if (piece.end == End::kImage || piece.end == End::kBrokenImage)
        document_.PostStatus(kirto::Format("Status: loading frame %d...", next_position_ + 1));
    return true;
}

bool GifLoad::TakePiece(const kirto::GifPiece& piece, kirto::GifIndices* ahead) {
    if (piece.end == End::kTrailer) return false;
    if (piece.end == End::kMore) return true;
    damaged_ = piece.end != End::kImage;
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
