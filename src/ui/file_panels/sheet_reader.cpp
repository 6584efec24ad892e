#include "ui/file_panels/sheet_reader.h"

#include <atomic>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#include "base/abandonable.h"
#include "kit/qt/picture_image.h"

namespace kirto {

namespace {

constexpr int kMostSide = 2048;  // of an image that is painted, device pixels

QImage ImageToPaint(const PreviewedSheet& sheet) {
    QImage image = ImageOfPicture(sheet.picture);
    if (image.width() <= kMostSide && image.height() <= kMostSide) return image;
    const QSize size = image.size().scaled(kMostSide, kMostSide, Qt::KeepAspectRatio);
    return image.scaled(size.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

SheetReader::SheetReader(BTranslatorRoster& roster, Receiver receive)
    : roster_(roster), receive_(std::move(receive)) {}

SheetReader::~SheetReader() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    wished_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void SheetReader::Ask(const std::string& path, const TileGrid& grid) {
    {
        const std::lock_guard lock(mutex_);
        wish_ = {path, grid};
    }
    wished_.notify_one();
    if (thread_.joinable() || path.empty()) return;
    try {
        thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        // Without a thread there is no preview; the next wish tries again.
        return;
    }
}

std::optional<SheetReader::Wish> SheetReader::NextWish() {
    std::unique_lock lock(mutex_);
    wished_.wait(lock, [this] { return over_ || wish_; });
    if (over_) return std::nullopt;
    return std::exchange(wish_, std::nullopt);
}

void SheetReader::Run() {
    while (const std::optional<Wish> wish = NextWish()) {
        // A preview that memory is too short for is none.
        try {
            Fulfil(*wish);
        } catch (const std::bad_alloc&) {
            kept_ = {};
        }
    }
}

void SheetReader::Fulfil(const Wish& wish) {
    if (kept_.path != wish.path && !Read(wish.path)) return;
    ReadSheet read;
    read.path = wish.path;
    read.cutting.text = kept_.text;
    if (kept_.sheet) {
        read.image = kept_.image;
        read.size = {kept_.sheet->picture->Width(), kept_.sheet->picture->Height()};
        read.cutting = CuttingOf(*kept_.sheet, wish.grid);
    }
    Deliver(std::move(read));
}

bool SheetReader::GivenUp(const std::string& path) {
    const std::lock_guard lock(mutex_);
    return over_ || (wish_ && wish_->path != path);
}

bool SheetReader::Read(const std::string& path) {
    kept_ = {};
    const auto reading = std::make_shared<Kept>();
    const auto abandoned = std::make_shared<std::atomic<bool>>(false);
    const auto read = [reading, abandoned, path, &roster = roster_] {
        reading->sheet = ReadSheetToShow(
            entry_ref(path), roster, [&] { return abandoned->load(); }, &reading->text);
        if (reading->sheet) reading->image = ImageToPaint(*reading->sheet);
    };
    if (!path.empty() && !FinishOrAbandon([&] { return GivenUp(path); }, read)) {
        *abandoned = true;
        return false;
    }
    kept_ = std::move(*reading);
    kept_.path = path;
    return true;
}

void SheetReader::Deliver(ReadSheet sheet) {
    QMetaObject::invokeMethod(
        &gui_, [this, sheet = std::move(sheet)] { receive_(sheet); }, Qt::QueuedConnection);
}

}  // namespace kirto
