#include "ui/dialogs/fade_strip.h"

#include <QPainter>
#include <algorithm>

#include "app/fade_preview.h"
#include "ui/controls/image_of.h"

namespace kirto {

namespace {

constexpr int kStripLines = 4;  // of text, high
constexpr int kMostImages = 6;
constexpr int kStripMargin = 3;
constexpr int32 kStripSide = 128;  // of a picture, pixels
constexpr int32 kMostFrames = 100;

QColor PixelColor(uint32 color) {
    return {static_cast<int>(color >> 24), static_cast<int>(color >> 16 & 0xFF),
            static_cast<int>(color >> 8 & 0xFF)};
}

}  // namespace

FadeStrip::FadeStrip(const char* name, std::function<Choice()> choice, QWidget* parent)
    : QWidget(parent), choice_(std::move(choice)) {
    setObjectName(QString::fromUtf8(name));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FadeStrip::SetAnimation(std::shared_ptr<const Animation> animation) {
    animation_ = std::move(animation);
    made_.reset();
    update();
}

QSize FadeStrip::sizeHint() const {
    const int side = kStripLines * fontMetrics().height();
    return {2 * side, side};
}

const std::vector<QImage>& FadeStrip::Images() {
    const Choice choice = choice_();
    if (made_ != choice) Make(choice);
    return images_;
}

void FadeStrip::Make(const Choice& choice) {
    made_ = choice;
    images_.clear();
    if (!animation_ || choice.count < 1 || choice.count > kMostFrames) return;
    const auto pictures =
        FadePreview(*animation_, choice.command, choice.count, choice.color, kStripSide);
    const int count = static_cast<int>(pictures.size());
    const int shown = std::min(count, kMostImages);
    for (int i = 0; i < shown; ++i) {
        const int place = shown > 1 ? i * (count - 1) / (shown - 1) : 0;
        images_.push_back(
            ImageOf(pictures[static_cast<size_t>(place)], {kStripSide, kStripSide}).copy());
    }
}

void FadeStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(PixelColor(choice_().color));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const std::vector<QImage>& images = Images();
    if (images.empty()) return;
    const QRectF room =
        QRectF(rect()).adjusted(kStripMargin, kStripMargin, -kStripMargin, -kStripMargin);
    const double share = room.width() / static_cast<double>(images.size());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (size_t i = 0; i < images.size(); ++i) {
        const QSizeF size = QSizeF(images[i].size())
                                .scaled(share - kStripMargin, room.height(), Qt::KeepAspectRatio);
        QRectF place({}, size);
        place.moveCenter({room.left() + share * (static_cast<double>(i) + 0.5), room.center().y()});
        painter.drawImage(place, images[i]);
    }
}

}  // namespace kirto
