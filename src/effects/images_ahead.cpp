#include "effects/images_ahead.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/allocation.h"
#include "base/run_in_order.h"
#include "base/thread_count.h"
#include "kit/image_header.h"

namespace kirto {

namespace {

constexpr std::chrono::milliseconds kLook{20};

int32 Threads() {
    // The n-th allocation is a particular one only as long as one thread allocates.
    return LentAllocationFault() ? 1 : ThreadCount();
}

// Files that are not known by their first bytes have one kind of decoder, which needs no memory
// beside the picture.
bool MayBeReadAhead(const std::string& path) {
    BFile file(path, B_READ_ONLY);
    if (file.InitCheck() != B_OK) return true;
    const ImageHeader header = ReadImageHeader(file);
    const bool known = *header.format != '\0';
    return !known || (header.Pixels() > 0 && header.Pixels() <= ImagesAhead::kMostPixelsAhead);
}

}  // namespace

struct ImagesAhead::Piece : WorkerThreads::Task {
    Piece(ImagesAhead& reader, std::string path) : owner(reader), file(std::move(path)) {}

    void Run(int32) noexcept override {
        const auto given_up = [this] { return owner.given_up_ || owner.work_.StopRequested(); };
        try {
            image = ReadFrameImageAhead(file, owner.roster_, owner.budget_, owner.work_, given_up);
        } catch (...) {
            // It throws again at its turn.
            image.reset();
        }
    }

    ImagesAhead& owner;
    const std::string file;
    std::optional<FrameImage> image;
};

ImagesAhead::ImagesAhead(BTranslatorRoster& roster, std::shared_ptr<PixelBudget> budget, Work& work)
    : roster_(roster), budget_(std::move(budget)), work_(work) {}

ImagesAhead::~ImagesAhead() {
    Forget();
}

size_t ImagesAhead::MostFollowing() {
    const int32 threads = Threads();
    return threads > 1 ? PiecesInFlight(threads) - 1 : 0;
}

FrameImage ImagesAhead::Read(const std::vector<std::string>& files) {
    Announce(files);
    std::optional<FrameImage> image = TakeFirst();
    if (!image) {
        Drop();
        image = ReadFrameImage(files.front(), roster_, budget_, &work_);
    }
    if (files.size() == 1) Forget();
    return std::move(*image);
}

void ImagesAhead::Forget() {
    given_up_ = true;
    Drop();
    given_up_ = false;
    alone_ = false;
}

void ImagesAhead::Drop() {
    workers_.reset();
    pieces_.clear();
}

void ImagesAhead::Announce(const std::vector<std::string>& files) {
    const bool as_expected =
        pieces_.size() <= files.size() &&
        std::equal(pieces_.begin(), pieces_.end(), files.begin(),
                   [](const auto& piece, const std::string& file) { return piece->file == file; });
    if (!as_expected) Forget();
    // A single file is not worth a thread.
    if (alone_ || (pieces_.empty() && files.size() == 1)) return;
    const size_t most = std::min(files.size(), MostFollowing() + 1);
    while (most > 1 && pieces_.size() < most && Begin(files[pieces_.size()])) {
    }
}

bool ImagesAhead::Begin(const std::string& file) {
    if (!MayBeReadAhead(file)) return false;
    if (!workers_) workers_ = std::make_unique<WorkerThreads>(Threads());
    pieces_.push_back(std::make_unique<Piece>(*this, file));
    if (workers_->Add(*pieces_.back())) return true;
    Drop();
    alone_ = true;
    return false;
}

std::optional<FrameImage> ImagesAhead::TakeFirst() {
    if (pieces_.empty()) return std::nullopt;
    while (!workers_->WaitFor(*pieces_.front(), kLook))
        work_.ReportAgain();
    const std::unique_ptr<Piece> piece = std::move(pieces_.front());
    pieces_.pop_front();
    alone_ = !piece->image || !Holds(*piece->image);
    return alone_ ? std::nullopt : std::move(piece->image);
}

bool ImagesAhead::Holds(const FrameImage& image) const {
    if (work_.StopRequested() || image.status == B_NO_MEMORY) return false;
    if (image.palette_status == B_NO_MEMORY) return false;
    // As much as decoders may take beside the picture, and more. Where there is no picture, one
    // that may have been too large for what was left then.
    constexpr uint64 kPictures = 8;
    const uint64 bytes =
        uint64{4} * static_cast<uint64>(image.width) * static_cast<uint64>(image.height);
    return budget_->Left() >= (image.status == B_OK ? kPictures * bytes : budget_->Limit() / 2);
}

}  // namespace kirto
