#include "formats/gif/gif_save.h"

#include "base/byte_order.h"
#include "base/text.h"

namespace {

constexpr char kComment[] = "Created by Kirto v1.4 by Morvik on BeOS";

kirto::GifSaveOptions OptionsOf(const Prefs& prefs) {
    const int32 disposal = prefs.animation_gifdisposal;
    return {.interlaced = prefs.animation_gifinterlaced,
            .comment = prefs.animation_gifcomment,
            .pause_in_seconds = prefs.global_pauseinseconds,
            .disposal = disposal >= 0 && disposal <= 2 ? disposal : 3};
}

int64 CountRows(const kirto::FrameSequence& frames) {
    int64 rows = 0;
    for (const kirto::FramePointer& frame : frames)
        rows += frame->height;
    return rows;
}

}  // namespace

GifSave::GifSave(std::shared_ptr<BFile> file, AnimationDocument& document)
    : file_(std::move(file)), animation_(document.Current()), options_(OptionsOf(document.prefs)) {
    WriteGifHeader();
    kirto::GifFrameEncoder encoder(*animation_, options_);
    const int32 count = animation_->frames.Size();
    const int64 rows = CountRows(animation_->frames);
    int64 rows_done = 0;
    int32 number = 0;
    for (const kirto::FramePointer& frame : animation_->frames) {
        document.PostStatus(kirto::Format("Status: writing frame %d of %d...", ++number, count));
        if (document.StopRequested()) break;
        encoder.Encode(*frame, *file_, document.work, rows_done, rows);
        rows_done += frame->height;
    }
    file_->Write(";", 1);
    file_->SetMimeType("image/gif");
}

void GifSave::WriteGifHeader() {
    const Palette& palette = *animation_->palette;
    uint8 header[13] = {'G', 'I', 'F', '8', '9', 'a'};
    kirto::WriteLittle16(header + 6, animation_->width);
    kirto::WriteLittle16(header + 8, animation_->height);
    // A global table, of the highest colour resolution, unsorted.
    header[10] = kirto::LowByte((palette.bits - 1) | 0xF0);
    header[11] = kirto::LowByte(palette.background_index);
    file_->Write(header, sizeof(header));
    kirto::GifFrameEncoder::WriteColorTable(palette, palette.bits, *file_);
    if (animation_->use_loop) {
        uint8 loop[19] = {0x21, 0xFF, 0x0B, 'N', 'E', 'T', 'S', 'C', 'A', 'P',
                          'E',  '2',  '.',  '0', 3,   1,   0,   0,   0};
        kirto::WriteLittle16(loop + 16, animation_->loop_count);
        file_->Write(loop, sizeof(loop));
    }
    if (options_.comment) {
        const uint8 start[3] = {0x21, 0xFE, kirto::LowByte(sizeof(kComment) - 1)};
        file_->Write(start, sizeof(start));
        // The text's own terminating zero ends the chain of sub-blocks.
        file_->Write(kComment, sizeof(kComment));
    }
}
