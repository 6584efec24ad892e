#include "kit/decoding/decoding_roster.h"

#include <algorithm>
#include <utility>

#include "base/debug_line.h"
#include "kit/decoding/decoded_animation.h"
#include "kit/decoding/decoded_pixels.h"
#include "kit/image_header.h"

namespace kirto {

namespace {

using Outcome = DecoderProcess::Outcome;

uint64 BytesLeft(const PixelBudget* budget) {
    return budget ? budget->Left() : PixelBudget::DefaultLimit();
}

// Statuses that a decoder gives; any other is none that it could mean.
status_t CheckedStatus(status_t status) {
    return status == B_NO_MEMORY || status == B_IO_ERROR ? status : B_NO_TRANSLATOR;
}

// The picture that came along. B_BAD_DATA when it is not what the answer says.
status_t PictureOf(const DecodeAnswer& answer, const FileDescriptor& pixels,
                   const std::shared_ptr<PixelBudget>& budget, std::shared_ptr<BBitmap>* result) {
    const auto space = static_cast<color_space>(answer.color_space);
    const bool known = space == B_RGB32 || space == B_RGBA32;
    if (!known || !HasDecodedPixels(pixels, answer.width, answer.height)) return B_BAD_DATA;
    const BRect bounds = BRect::OfSize(answer.width, answer.height);
    *result = BBitmap::OnSealedFile(bounds, space, pixels, budget);
    if ((*result)->InitCheck() == B_OK) return B_OK;
    result->reset();
    auto bitmap = std::make_shared<BBitmap>(bounds, space, budget);
    if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
    if (!ReadDecodedPixels(pixels, {bitmap->Bits(), bitmap->BitsLength()})) return B_BAD_DATA;
    *result = std::move(bitmap);
    return B_OK;
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
    if (answer.status != B_OK) return CheckedStatus(answer.status);
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
