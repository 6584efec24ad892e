#include "main/decode/decode_service.h"

#include <algorithm>
#include <cerrno>
#include <span>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

#include "kit/bitmap_memory.h"

namespace kirto {

using Result = AnimatedImageReader::Result;

namespace {

// A file in memory of that size; none when memory is short.
FileDescriptor MakeSharedFile(size_t size) {
    FileDescriptor file(memfd_create("kirto-pixels", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (file && ftruncate(file.Get(), static_cast<off_t>(size)) != 0) return {};
    return file;
}

bool WriteAt(const FileDescriptor& file, size_t position, std::span<const uint8> bytes) {
    while (!bytes.empty()) {
        const ssize_t count =
            pwrite(file.Get(), bytes.data(), bytes.size(), static_cast<off_t>(position));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        position += static_cast<size_t>(count);
        bytes = bytes.subspan(static_cast<size_t>(count));
    }
    return true;
}

}  // namespace

void DecodeService::Run() {
    while (going_on_) {
        DecodeRequest request;
        FileDescriptor file;
        const auto received = channel_.Receive(std::as_writable_bytes(std::span(&request, 1)),
                                               &file, std::chrono::milliseconds(-1));
        if (received == DecodeChannel::Received::kClosed) return;
        if (received == DecodeChannel::Received::kNothingYet) continue;
        switch (request.job) {
            case DecodeJob::kPicture:
                DecodePicture(request, std::move(file));
                break;
            case DecodeJob::kAnimation:
                OpenAnimation(request, std::move(file));
                break;
            case DecodeJob::kNextFrame:
                DrawNextFrame();
                break;
        }
    }
}

void DecodeService::DecodePicture(const DecodeRequest& request, FileDescriptor file) {
    const std::unique_ptr<BFile> source = BFile::OnDescriptor(std::move(file));
    DecodeAnswer answer{};
    std::shared_ptr<BBitmap> picture;
    answer.status =
        roster_.Translate(*source, std::make_shared<PixelBudget>(request.pixel_bytes), &picture);
    if (answer.status == B_OK) {
        answer.color_space = static_cast<uint32>(picture->ColorSpace());
        answer.width = picture->Width();
        answer.height = picture->Height();
        if (!Share({picture->Bits(), picture->BitsLength()})) answer.status = B_NO_MEMORY;
    }
    Answer(answer, answer.status == B_OK ? pixels_.Get() : -1);
}

// A small file that has been read by now is used again. A large one is sealed, so that it needs no
// copy where it is read.
bool DecodeService::Share(std::span<const uint8> bytes) {
    if (!pixels_ || bytes.size() > shared_size_ || shared_size_ > kSmallSize) {
        pixels_ = MakeSharedFile(bytes.size());
        shared_size_ = bytes.size();
    }
    if (!pixels_ || !WriteAt(pixels_, 0, bytes)) return false;
    return bytes.size() <= kSmallSize || SealFile(pixels_);
}

void DecodeService::OpenAnimation(const DecodeRequest& request, FileDescriptor file) {
    DecodeAnswer answer{};
    const Result result = ReadHeader(request, std::move(file), &answer);
    answer.result = static_cast<int32>(result);
    Answer(answer, canvas_.Get());
}

Result DecodeService::ReadHeader(const DecodeRequest& request, FileDescriptor file,
                                 DecodeAnswer* answer) {
    animation_.reset();
    canvas_ = FileDescriptor();
    if (!ReadFile(std::move(file))) return Result::kBroken;
    animation_ = roster_.ReadAnimatedImage(static_cast<AnimatedImageFormat>(request.format),
                                           {bytes_.get(), size_}, request.pixel_bytes);
    AnimatedImageHeader header;
    const Result result = animation_ ? animation_->ReadHeader(&header) : Result::kBroken;
    if (result != Result::kFrame) return result;
    width_ = answer->width = header.width;
    height_ = answer->height = header.height;
    answer->frame_count = header.frame_count;
    answer->plays = header.plays;
    canvas_ =
        MakeSharedFile(size_t{4} * static_cast<size_t>(width_) * static_cast<size_t>(height_));
    return canvas_ ? Result::kFrame : Result::kNoMemory;
}

bool DecodeService::ReadFile(FileDescriptor descriptor) {
    const std::unique_ptr<BFile> file = BFile::OnDescriptor(std::move(descriptor));
    if (file->InitCheck() != B_OK) return false;
    size_ = static_cast<size_t>(file->Size());
    bytes_ = AllocateUnfilledArray<uint8>(std::max<size_t>(size_, 1));
    return bytes_ && file->ReadExactly(bytes_.get(), size_);
}

void DecodeService::DrawNextFrame() {
    DecodeAnswer answer{};
    Result result = animation_ && canvas_ ? animation_->Next() : Result::kBroken;
    if (result == Result::kFrame) {
        answer.milliseconds = animation_->Milliseconds();
        const size_t row_bytes = size_t{4} * static_cast<size_t>(width_);
        for (int32 y = 0; y < height_ && result == Result::kFrame; ++y) {
            const bool written = WriteAt(canvas_, row_bytes * static_cast<size_t>(y),
                                         {animation_->Row(y), row_bytes});
            if (!written) result = Result::kNoMemory;
        }
    }
    answer.result = static_cast<int32>(result);
    Answer(answer, -1);
}

void DecodeService::Answer(const DecodeAnswer& answer, int file) {
    going_on_ = channel_.Send(std::as_bytes(std::span(&answer, 1)), file);
}

}  // namespace kirto
