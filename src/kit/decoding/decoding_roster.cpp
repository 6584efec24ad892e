#include "kit/decoding/decoding_roster.h"

#include <algorithm>
#include <utility>

#include "base/debug_line.h"
#include "kit/decoding/decoded_animation.h"
#include "kit/decoding/decoded_picture.h"
#include "kit/image_header.h"

namespace kirto {

namespace {

using Outcome = DecoderProcess::Outcome;

uint64 BytesLeft(const PixelBudget* budget) {
    return budget ? budget->Left() : PixelBudget::DefaultLimit();
}

// Asks the process for the picture in the file. B_BAD_DATA when it gives no answer that makes
// sense.
status_t ReadWith(DecoderProcess& process, const FileDescriptor& file, uint64 bytes_left,
                  const std::function<bool()>& given_up, const std::shared_ptr<PixelBudget>& budget,
                  std::shared_ptr<BBitmap>* result) {
    const DecodeRequest request{DecodeJob::kPicture, 0, bytes_left};
    DecodeAnswer answer{};
    FileDescriptor pixels;
    switch (process.Ask(request, file.Get(), given_up, &answer, &pixels)) {
        case Outcome::kGivenUp:
            return B_CANCELED;
        case Outcome::kTooLong:
            DebugLine("DecodingRoster::Translate() - The picture took too long\n");
            return B_NO_TRANSLATOR;
        case Outcome::kDied:
            return B_BAD_DATA;
        case Outcome::kAnswered:
            break;
    }
    return PictureOf(answer, pixels, budget, result);
}

}  // namespace

DecodingRoster::DecodingRoster(std::string program, BTranslatorRoster& others,
                               DecoderProcess::Limits limits)
    : program_(std::move(program)), others_(others), limits_(limits) {}

status_t DecodingRoster::Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                                   std::shared_ptr<BBitmap>* result) {
    return TranslateUnless([] { return false; }, source, std::move(budget), result);
}

status_t DecodingRoster::TranslateUnless(const std::function<bool()>& given_up, BFile& source,
                                         std::shared_ptr<PixelBudget> budget,
                                         std::shared_ptr<BBitmap>* result) {
    result->reset();
    if (source.InitCheck() != B_OK) return source.InitCheck();
    const std::string format = ReadImageHeader(source).format;
    const FileDescriptor file = source.ForOtherProcess();
    if (!file) return B_IO_ERROR;

    const uint64 left = BytesLeft(budget.get());
    std::unique_ptr<DecoderProcess> process = TakeProcess(format, left);
    const bool used = process->HasAnswered();
    const auto read = [&] { return ReadWith(*process, file, left, given_up, budget, result); };
    status_t status = read();
    if (status == B_BAD_DATA && used) {
        // What it has read before may have broken it.
        process = NewProcess(format, left);
        status = read();
    }
    if (status == B_BAD_DATA) return B_NO_TRANSLATOR;
    if (process->IsAlive()) GiveBack(format, std::move(process));
    return status;
}

std::unique_ptr<AnimatedImageReader> DecodingRoster::ReadAnimatedImage(AnimatedImageFormat format,
                                                                       std::span<const uint8> file,
                                                                       uint64 pixel_bytes) const {
    return std::make_unique<DecodedAnimation>(TakeProcess("", pixel_bytes + file.size()), format,
                                              file, pixel_bytes);
}

// One that waits, if it may take that much memory, else a new one.
std::unique_ptr<DecoderProcess> DecodingRoster::TakeProcess(const std::string& format,
                                                            uint64 memory) const {
    {
        const std::lock_guard lock(mutex_);
        Processes& idle = idle_[format];
        std::erase_if(idle, [&](const auto& process) {
            return !process->IsAlive() || process->Memory() < memory;
        });
        if (!idle.empty()) {
            std::unique_ptr<DecoderProcess> process = std::move(idle.back());
            idle.pop_back();
            return process;
        }
    }
    return NewProcess(format, memory);
}

std::unique_ptr<DecoderProcess> DecodingRoster::NewProcess(const std::string& format,
                                                           uint64 memory) const {
    return std::make_unique<DecoderProcess>(program_, format,
                                            std::max(memory, PixelBudget::DefaultLimit()), limits_);
}

void DecodingRoster::GiveBack(const std::string& format, std::unique_ptr<DecoderProcess> process) {
    const std::lock_guard lock(mutex_);
    idle_[format].push_back(std::move(process));
}

}  // namespace kirto
