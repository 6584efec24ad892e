#include "ui/dialogs/video_pictures.h"

#include <algorithm>
#include <utility>

namespace kirto {

VideoPictures::VideoPictures(const std::string& path, Receivers receivers)
    : receivers_(std::move(receivers)) {
    work_.Do([this, path](const std::atomic<bool>& stop) -> std::function<void()> {
        Read(path, stop);
        return {};
    });
}

QImage VideoPictures::At(double seconds) const {
    if (pictures_.empty()) return {};
    const double index =
        std::clamp(seconds * rate_, 0.0, static_cast<double>(pictures_.size() - 1));
    return pictures_[static_cast<size_t>(index)];
}

void VideoPictures::Post(std::function<void()> call) {
    QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
}

void VideoPictures::Read(const std::string& path, const std::atomic<bool>& stop) {
    QSize size;
    VideoViewer viewer;
    viewer.begin = [this, &size](const PreviewedVideo& video) {
        size = {video.frames.width, video.frames.height};
        Post([this, video] {
            rate_ = static_cast<double>(video.frames.rate_numerator) /
                    static_cast<double>(video.frames.rate_denominator);
            receivers_.begin(video);
        });
    };
    viewer.show = [this, &size](const uint8* pixels) {
        const QImage picture =
            QImage(pixels, size.width(), size.height(), QImage::Format_RGB32).copy();
        Post([this, picture] {
            pictures_.push_back(picture);
            receivers_.grown();
        });
    };
    viewer.given_up = [&stop] { return stop.load(); };
    const std::string reason = ReadVideoToShow(path, viewer);
    if (!reason.empty())
        Post([this, reason] { receivers_.failed(QString::fromStdString(reason)); });
}

}  // namespace kirto
