#include "kit/decoding/decoded_animation.h"

#include <cmath>
#include <utility>

#include "kit/decoding/decoded_pixels.h"
#include "kit/file.h"

namespace kirto {

DecodedAnimation::DecodedAnimation(std::unique_ptr<DecoderProcess> process,
                                   AnimatedImageFormat format, std::span<const uint8> file,
                                   uint64 pixel_bytes)
    : process_(std::move(process)), format_(format), file_(file), pixel_bytes_(pixel_bytes) {}

AnimatedImageReader::Result DecodedAnimation::ReadHeader(AnimatedImageHeader* header) {
    const FileDescriptor file = BFile::OnMemory({file_.begin(), file_.end()})->ForOtherProcess();
    if (!file) return Result::kNoMemory;
    DecodeAnswer answer{};
    const Result result = Ask(DecodeJob::kAnimation, file.Get(), &answer, &pixels_);
    if (result != Result::kFrame) return result;
    if (!HasDecodedPixels(pixels_, answer.width, answer.height)) return Result::kBroken;
    width_ = answer.width;
    height_ = answer.height;
    if (CanvasBytes() <= pixel_bytes_) canvas_ = AllocateUnfilledArray<uint8>(CanvasBytes());
    if (!canvas_) return Result::kNoMemory;
    *header = {answer.width, answer.height, std::max(answer.frame_count, 0),
               std::max(answer.plays, 0)};
    return Result::kFrame;
}

AnimatedImageReader::Result DecodedAnimation::Next() {
    DecodeAnswer answer{};
    FileDescriptor nothing;
    const Result result = Ask(DecodeJob::kNextFrame, -1, &answer, &nothing);
    if (result != Result::kFrame) return result;
    milliseconds_ = answer.milliseconds;
    const bool sensible = std::isfinite(milliseconds_) && milliseconds_ >= 0.0;
    const bool read = ReadDecodedPixels(pixels_, {canvas_.get(), CanvasBytes()});
    return sensible && read ? Result::kFrame : Result::kBroken;
}

AnimatedImageReader::Result DecodedAnimation::Ask(DecodeJob job, int file, DecodeAnswer* answer,
                                                  FileDescriptor* pixels) {
    const DecodeRequest request{job, static_cast<uint32>(format_), pixel_bytes_};
    const auto outcome = process_->Ask(
        request, file, [] { return false; }, answer, pixels);
    if (outcome != DecoderProcess::Outcome::kAnswered) return Result::kBroken;
    switch (static_cast<Result>(answer->result)) {
        case Result::kFrame:
        case Result::kEnd:
        case Result::kNoMemory:
            return static_cast<Result>(answer->result);
        case Result::kBroken:
            break;
    }
    return Result::kBroken;
}

}  // namespace kirto
