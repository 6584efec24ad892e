#include "formats/fli/fli_load.h"

#include <utility>

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
        return;
    }
    TakeHeader(header);
    // By the defined rules every record counts, to players only those that show something; what
    // comes behind the last frame leads back to the first.
    for (int32 i = 0; i < header.frame_count && !failed;) {
        document_.PostStatus(
            kirto::Format("Status: loading frame %d of %d...", i + 1, header.frame_count));
        failed = document_.StopRequested() || !ReadRecord(i);
        i = rules_ == kirto::FliRules::kPlayers ? frames_ : i + 1;
    }
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

bool FliLoad::ReadRecord(int32 index) {
    // Only the document's first frame defines the global palette.
    const kirto::FliDecoder::Place place{document_.FrameAt(position_ - 1), position_ == 0};
    Frame frame;
    const Record record = decoder_.ReadRecord(index, place, &frame);
    if (place.defines_global) CommitPalette();
    switch (record) {
        case Record::kFrame:
            ++frames_;
            if (!document_.InsertFrame(position_, std::move(frame))) return false;
            ++position_;
            return true;
        case Record::kLonger:
            ++frames_;
            return ShowPreviousFrameLonger();
        case Record::kSkipped:
            return true;
        case Record::kBroken:
            break;
    }
    out_of_memory = decoder_.OutOfMemory();
    harmless_cause = decoder_.Cause();
    return false;
}

void FliLoad::CommitPalette() {
    if (decoder_.GlobalPalette() == *document_.Current()->palette) return;
    document_.Change([this](kirto::Animation& animation) {
        animation.palette = std::make_shared<const Palette>(decoder_.GlobalPalette());
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
