#include "formats/fli/fli_load.h"

#include <utility>

#include "base/text.h"

using Record = kirto::FliDecoder::Record;

FliLoad::FliLoad(BFile* file, int32 start, AnimationDocument& document)
    : document_(document),
      decoder_(*file, *document.Current()->palette, document.pixel_budget, document.work),
      position_(start) {
    kirto::FliHeader header;
    if (file->InitCheck() != B_OK || !decoder_.ReadFliHeader(&header)) {
        failed = true;
        return;
    }
    TakeHeader(header);
    for (int32 i = 0; i < header.frame_count && !failed; ++i) {
        document_.PostStatus(
            kirto::Format("Status: loading frame %d of %d...", i + 1, header.frame_count));
        failed = document_.StopRequested() || !ReadRecord(i);
    }
}

void FliLoad::TakeHeader(const kirto::FliHeader& header) {
    pause_ = document_.prefs.global_pauseinseconds ? header.seconds : header.seconds * 100.0;
    document_.Change([&](kirto::Animation& animation) {
        animation.width = header.width;
        animation.height = header.height;
        animation.pause_length = pause_;
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
            if (!document_.InsertFrame(position_, std::move(frame))) return false;
            ++position_;
            return true;
        case Record::kLonger:
            return ShowPreviousFrameLonger();
        case Record::kSkipped:
            return true;
        case Record::kBroken:
            break;
    }
    out_of_memory = decoder_.OutOfMemory();
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
