#include "formats/fli/fli_load.h"

#include <utility>

#include "base/core_text.h"
#include "base/debug_line.h"
#include "base/run_in_order.h"
#include "base/text.h"

using Record = kirto::FliDecoder::Record;

FliLoad::FliLoad(BFile* file, int32 start, AnimationDocument& document)
    : document_(document),
      rules_(document.prefs.animation_faithful ? kirto::FliRules::kPlayers
                                               : kirto::FliRules::kDefined),
      decoder_(*file, rules_, *document.Current()->palette, document.pixel_budget, document.work),
      position_(start) {
    kirto::FliHeader header;
    if (file->InitCheck() != B_OK || !decoder_.ReadFliHeader(&header)) {
        failed = true;
        out_of_memory = file->RanOutOfMemory();
        return;
    }
    TakeHeader(header);
    ReadFrames(header.frame_count);
}

void FliLoad::TakeHeader(const kirto::FliHeader& header) {
    const bool players = rules_ == kirto::FliRules::kPlayers;
    const double hundredths = players ? header.hundredths : header.seconds * 100.0;
    pause_ = document_.prefs.global_pauseinseconds ? header.seconds : hundredths;
    document_.Change([&](kirto::Animation& animation) {
        animation.width = header.width;
        animation.height = header.height;
        animation.pause_length = pause_;
        if (players) animation.use_pause = true;
    });
}

void FliLoad::ReadFrames(int32 count) {
    kirto::FliAhead ahead(decoder_, rules_, count, position_, document_.FrameAt(position_ - 1));
    kirto::OrderedSteps<kirto::FliPiece, Finished> steps;
    steps.next = [&ahead] { return ahead.Next(); };
    steps.begin = [this, count](const kirto::FliPiece& piece) {
        failed = !BeginPiece(piece, count);
        return !failed;
    };
    steps.work = [this](const kirto::FliPiece& piece, int32) { return Finish(piece); };
    steps.waiting = [this] { document_.work.ReportAgain(); };
    steps.take = [this](const kirto::FliPiece& piece, std::optional<Finished> finished) {
        failed = !finished || !TakePiece(piece, *finished);
        return !failed;
    };
    kirto::RunInOrder(steps);
}

bool FliLoad::BeginPiece(const kirto::FliPiece& piece, int32 count) {
    document_.PostStatus(CoreText::With(CoreText::tr("Status: loading frame %1 of %2..."),
                                        {std::to_string(piece.index + 1), std::to_string(count)}));
    if (document_.StopRequested()) return false;
    if (!piece.lines.empty()) kirto::DebugLine("%s", piece.lines.c_str());
    return true;
}

// What takes time of a frame's palette.
FliLoad::Finished FliLoad::Finish(const kirto::FliPiece& piece) const {
    Finished finished;
    if (piece.kind != Record::kFrame || piece.repeats) return finished;
    const kirto::Picture& picture = *piece.frame.bitmap;
    if (piece.frame.local_palette) {
        // Its colors are counted in a moment; that goes by these.
        for (const auto& strip : picture.AllStrips())
            strip->Count();
    } else {
        finished.palette = *piece.palette;
        finished.status = finished.palette.SetOptimal(&picture, &document_.work);
    }
    return finished;
}

bool FliLoad::TakePiece(const kirto::FliPiece& piece, const Finished& finished) {
    if (piece.kind == Record::kFrame) CompletePalette(piece, finished);
    if (piece.global) CommitPalette(*piece.global);
    switch (piece.kind) {
        case Record::kFrame:
            if (document_.StopRequested() || !document_.InsertFrame(position_, piece.frame))
                return false;
            ++position_;
            return true;
        case Record::kLonger:
            return ShowPreviousFrameLonger();
        case Record::kSkipped:
            return true;
        case Record::kBroken:
            break;
    }
    out_of_memory = piece.out_of_memory;
    harmless_cause = piece.cause;
    return false;
}

// Frames that repeat a picture take what was found out about it, as large pictures take long.
void FliLoad::CompletePalette(const kirto::FliPiece& piece, const Finished& finished) {
    if (piece.frame.local_palette) {
        if (!piece.repeats || last_.palette.unique_colors == 0) {
            last_.palette.unique_colors =
                piece.palette->CountUniqueColors(piece.frame.bitmap.get(), &document_.work);
        }
        piece.palette->unique_colors = last_.palette.unique_colors;
    } else {
        if (!piece.repeats) last_ = finished;
        *piece.palette = last_.palette;
        Palette::TellOfFailure(last_.status);
    }
}

void FliLoad::CommitPalette(const Palette& global) {
    if (global == *document_.Current()->palette) return;
    document_.Change([&global](kirto::Animation& animation) {
        animation.palette = std::make_shared<const Palette>(global);
    });
}

// A record without chunks repeats the picture: instead of another frame, the last one waits longer.
bool FliLoad::ShowPreviousFrameLonger() {
    if (!document_.FrameAt(position_ - 1)) return false;
    document_.Change([this](kirto::Animation& animation) {
        kirto::EditFrame(animation, position_ - 1, [this](Frame& frame) {
            frame.pause_length = frame.use_pause ? frame.pause_length + pause_ : pause_ * 2;
            frame.use_pause = true;
        });
    });
    return true;
}
