#include "formats/images/animated_image_load.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/core_text.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "kit/watched_input.h"
#include "picture/picture_builder.h"

namespace kirto {

using Result = AnimatedImageReader::Result;

struct AnimatedImageLoad::Piece {
    Result result = Result::kBroken;
    std::shared_ptr<const Picture> picture;
    double pause = 0.0;  // in the unit of the settings
};

// What a piece becomes on any thread.
struct AnimatedImageLoad::Finished {
    Palette palette;
    status_t status = B_OK;
};

AnimatedImageLoad::AnimatedImageLoad(AnimatedImageFormat format, BFile* file, int32 start,
                                     AnimationDocument& document, const BTranslatorRoster& roster)
    : document_(document), position_(start) {
    if (!ReadFile(*file)) return;
    const uint64 room = document_.pixel_budget->Left() + PixelBudget::kWorkingRoom;
    reader_ = roster.ReadAnimatedImage(format, {bytes_.get(), size_}, room);
    Load();
}

AnimatedImageLoad::AnimatedImageLoad(std::unique_ptr<AnimatedImageReader> reader, int32 start,
                                     AnimationDocument& document)
    : document_(document), position_(start), reader_(std::move(reader)) {
    Load();
}

void AnimatedImageLoad::Load() {
    const int32 start = position_;
    const Result result = reader_ ? reader_->ReadHeader(&header_) : Result::kBroken;
    if (result != Result::kFrame) {
        Fail(result);
        return;
    }
    TakeHeader();
    ReadFrames();
    if (!failed) ShareOutPause(start);
}

bool AnimatedImageLoad::ReadFile(BFile& file) {
    const int64 size = file.InitCheck() == B_OK ? file.Size() : -1;
    if (size < 0) {
        Fail(Result::kBroken);
        return false;
    }
    size_ = static_cast<size_t>(size);
    const uint64 room = document_.pixel_budget->Left() + PixelBudget::kWorkingRoom;
    if (size_ <= room) bytes_ = AllocateUnfilledArray<uint8>(std::max<size_t>(size_, 1));
    if (!bytes_) {
        Fail(Result::kNoMemory);
        return false;
    }
    WatchedInput input(file, document_.work);
    if (!input.Read(bytes_.get(), size_)) Fail(Result::kBroken);
    return !failed;
}

void AnimatedImageLoad::TakeHeader() {
    const bool empty = document_.FrameCount() == 0;
    document_.Change([&](Animation& animation) {
        animation.width = empty ? header_.width : std::max(animation.width, header_.width);
        animation.height = empty ? header_.height : std::max(animation.height, header_.height);
        if (!empty) return;
        animation.use_loop = header_.plays != 1;
        animation.loop_count = std::max(header_.plays - 1, 0);
    });
}

void AnimatedImageLoad::ReadFrames() {
    OrderedSteps<Piece, Finished> steps;
    steps.next = [this] { return Draw(); };
    steps.begin = [this](const Piece&) {
        document_.PostStatus(
            CoreText::With(CoreText::tr("Status: loading frame %1 of %2..."),
                           {std::to_string(position_ + 1), std::to_string(header_.frame_count)}));
        return true;
    };
    steps.work = [this](const Piece& piece, int32) {
        Finished finished;
        if (piece.picture)
            finished.status = finished.palette.SetOptimal(piece.picture.get(), &document_.work);
        return finished;
    };
    steps.waiting = [this] { document_.work.ReportAgain(); };
    steps.take = [this](const Piece& piece, std::optional<Finished> finished) {
        return Take(piece, finished);
    };
    RunInOrder(steps);
}

std::optional<AnimatedImageLoad::Piece> AnimatedImageLoad::Draw() {
    if (over_ || document_.StopRequested()) return std::nullopt;
    Piece piece{reader_->Next(), nullptr, 0.0};
    if (piece.result == Result::kEnd) return std::nullopt;
    if (piece.result == Result::kFrame) {
        piece.picture = last_ = PictureOfCanvas();
        if (!piece.picture) piece.result = Result::kNoMemory;
        piece.pause =
            reader_->Milliseconds() / (document_.prefs.global_pauseinseconds ? 1000.0 : 10.0);
    }
    over_ = piece.result != Result::kFrame;
    ++drawn_;
    document_.work.Report(drawn_, std::max(drawn_, header_.frame_count));
    return piece;
}

// What is transparent has no color: files have any there, and palettes would be made of them.
std::shared_ptr<const Picture> AnimatedImageLoad::PictureOfCanvas() {
    PictureBuilder builder(header_.width, header_.height, B_RGBA32, document_.pixel_budget, last_);
    row_.resize(static_cast<size_t>(header_.width));
    for (int32 y = 0; y < header_.height; ++y) {
        std::memcpy(row_.data(), reader_->Row(y), row_.size() * sizeof(uint32));
        for (uint32& pixel : row_)
            pixel = pixel >> 24 == 0 ? 0 : pixel;
        if (!builder.AddRow(reinterpret_cast<const uint8*>(row_.data()))) return nullptr;
    }
    return builder.Take();
}

bool AnimatedImageLoad::Take(const Piece& piece, std::optional<Finished> finished) {
    if (piece.result != Result::kFrame || !finished) {
        Fail(finished ? piece.result : Result::kNoMemory);
        return false;
    }
    Frame frame(Format("frame%04d", position_), header_.width, header_.height);
    Palette::TellOfFailure(finished->status);
    frame.bitmap = piece.picture;
    frame.palette = std::make_shared<const Palette>(finished->palette);
    frame.local_palette = true;
    frame.use_pause = true;
    frame.pause_length = piece.pause;
    if (document_.StopRequested() || !document_.InsertFrame(position_, std::move(frame))) {
        failed = true;
        return false;
    }
    ++position_;
    return true;
}

// Frames that all wait equally long in a document of their own follow the animation.
void AnimatedImageLoad::ShareOutPause(int32 start) {
    if (document_.FrameCount() != position_ - start || position_ == start) return;
    const auto current = document_.Current();
    const double pause = current->frames.At(start)->pause_length;
    const bool equal =
        std::all_of(current->frames.begin(), current->frames.end(),
                    [pause](const FramePointer& frame) { return frame->pause_length == pause; });
    if (!equal) return;
    document_.Change([&](Animation& animation) {
        animation.use_pause = true;
        animation.pause_length = pause;
        for (int32 i = start; i < position_; ++i) {
            EditFrame(animation, i, [](Frame& frame) {
                frame.use_pause = false;
                frame.pause_length = 0;
            });
        }
    });
}

void AnimatedImageLoad::Fail(Result result) {
    failed = true;
    out_of_memory = result == Result::kNoMemory;
}

}  // namespace kirto
