#include "formats/gif/gif_save.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/byte_order.h"
#include "base/core_text.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "formats/gif/gif_extensions.h"

namespace {

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

// What an encoder keeps from frame to frame is one thread's. Where memory is too short for so many,
// fewer threads do: all frames are to be written as the first encoder writes them.
std::vector<kirto::GifFrameEncoder> MakeEncoders(const kirto::Animation& animation,
                                                 const kirto::GifSaveOptions& options,
                                                 size_t count) {
    std::vector<kirto::GifFrameEncoder> encoders;
    encoders.emplace_back(animation, options);
    while (encoders.size() < count && encoders.back().HasMemory())
        encoders.emplace_back(animation, options);
    if (encoders.size() > 1 && !encoders.back().HasMemory()) encoders.pop_back();
    return encoders;
}

}  // namespace

GifSave::GifSave(std::shared_ptr<BFile> file, AnimationDocument& document)
    : file_(std::move(file)), animation_(document.Current()), options_(OptionsOf(document.prefs)) {
    WriteGifHeader();
    WriteFrames(document);
    file_->Write(";", 1);
    file_->SetMimeType("image/gif");
}

void GifSave::WriteFrames(AnimationDocument& document) {
    const kirto::FrameSequence& frames = animation_->frames;
    const int32 count = frames.Size();
    const int32 threads = std::clamp(count, 1, kirto::ThreadCount());
    auto encoders = MakeEncoders(*animation_, options_, static_cast<size_t>(threads));
    kirto::SharedProgress progress(document.work, CountRows(frames));
    auto frame = frames.begin();
    int32 number = 0;
    kirto::OrderedSteps<kirto::FramePointer, kirto::ByteWriter> steps;
    steps.next = [&] { return frame != frames.end() ? std::optional(*frame++) : std::nullopt; };
    steps.begin = [&](const kirto::FramePointer&) {
        document.PostStatus(CoreText::With(CoreText::tr("Status: writing frame %1 of %2..."),
                                           {std::to_string(++number), std::to_string(count)}));
        progress.Tell();
        return !document.StopRequested();
    };
    steps.work = [&](const kirto::FramePointer& piece, int32 worker) {
        return encoders[static_cast<size_t>(worker)].Encode(*piece, progress);
    };
    steps.waiting = [&] { progress.Tell(); };
    steps.take = [&](const kirto::FramePointer&, std::optional<kirto::ByteWriter> bytes) {
        if (bytes) Write(*bytes);
        return bytes.has_value();
    };
    kirto::RunInOrder(steps, static_cast<int32>(encoders.size()));
}

void GifSave::Write(const kirto::ByteWriter& bytes) {
    file_->Write(bytes.Written().data(), bytes.Written().size());
}

void GifSave::WriteGifHeader() {
    const Palette& palette = *animation_->palette;
    uint8 header[13] = {'G', 'I', 'F', '8', '9', 'a'};
    kirto::WriteLittle16(header + 6, animation_->width);
    kirto::WriteLittle16(header + 8, animation_->height);
    // A global table, of the highest color resolution, unsorted.
    header[10] = kirto::LowByte((palette.bits - 1) | 0xF0);
    header[11] = kirto::LowByte(palette.background_index);
    file_->Write(header, sizeof(header));
    kirto::ByteWriter bytes;
    kirto::GifFrameEncoder::AddColorTable(palette, palette.bits, bytes);
    if (animation_->use_loop) kirto::AppendLoopBlock(animation_->loop_count, &bytes);
    if (options_.comment) kirto::AppendCommentBlock(&bytes);
    Write(bytes);
}
