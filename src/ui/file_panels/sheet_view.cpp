#include "ui/file_panels/sheet_view.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "kit/qt/ui_text.h"
#include "ui/controls/picture_painter.h"

namespace kirto {

namespace {

constexpr int kLinesHigh = 9;        // the picture, in lines of text
constexpr double kSmallestTile = 4;  // that lines are drawn around, in the widget
constexpr QColor kShade(0, 0, 0, 144);
constexpr QColor kHatching(255, 255, 255, 160);

// On whole pixels of the device.
QRectF OnDevice(const QRectF& rectangle, double ratio) {
    const auto edge = [ratio](double position) { return std::round(position * ratio) / ratio; };
    return {QPointF(edge(rectangle.left()), edge(rectangle.top())),
            QPointF(edge(rectangle.right()), edge(rectangle.bottom()))};
}

}  // namespace

SheetView::SheetView(BTranslatorRoster& roster, QWidget* parent)
    : QWidget(parent),
      text_(new QLabel(this)),
      reader_(roster, [this](const ReadSheet& sheet) { Receive(sheet); }) {
    setObjectName("SheetView");
    setAccessibleName(UiText::tr("Sheet"));
    text_->setObjectName("SheetText");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(text_);
    const int line = fontMetrics().lineSpacing();
    setFixedHeight(line * (kLinesHigh + 1) + line / 2);
}

void SheetView::ShowSheet(const std::string& path, const TileGrid& grid) {
    if (path != path_) {
        path_ = path;
        Receive({path, {}, {}, {}});
    }
    reader_.Ask(path, grid);
}

void SheetView::Receive(const ReadSheet& sheet) {
    if (sheet.path != path_) return;
    sheet_ = sheet;
    const QString text = QString::fromStdString(sheet.cutting.text);
    text_->setText(text);
    setAccessibleDescription(text);
    update();
}

// Enlarged by whole numbers only, so that all pixels of a sheet look the same.
double SheetView::Scale() const {
    const double ratio = devicePixelRatioF();
    const double height = text_->y() > 0 ? text_->y() : this->height();
    const double scale =
        std::min(width() / double(sheet_.size.width()), height / sheet_.size.height());
    return scale * ratio < 1 ? scale : std::floor(scale * ratio) / ratio;
}

QRectF SheetView::PlaceOf(const TilePlace& part) const {
    const double scale = Scale();
    return OnDevice({part.left * scale, part.top * scale, part.width * scale, part.height * scale},
                    devicePixelRatioF());
}

QImage SheetView::Shade(const QRectF& target) const {
    const double ratio = devicePixelRatioF();
    QImage shade((target.size() * ratio).toSize().expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    shade.setDevicePixelRatio(ratio);
    shade.fill(kShade);
    QPainter painter(&shade);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const PreviewedTile& tile : sheet_.cutting.tiles)
        if (!tile.skipped) painter.fillRect(PlaceOf(tile.place), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (const PreviewedTile& tile : sheet_.cutting.tiles)
        if (tile.skipped) painter.fillRect(PlaceOf(tile.place), {kHatching, Qt::BDiagPattern});
    return shade;
}

void SheetView::paintEvent(QPaintEvent*) {
    if (sheet_.image.isNull()) return;
    QPainter painter(this);
    const QRectF target = PlaceOf({0, 0, sheet_.size.width(), sheet_.size.height()});
    PicturePainter(painter, palette(), true, cache_)
        .Draw(nullptr, {0, 0, static_cast<float>(target.width() - 1),
                        static_cast<float>(target.height() - 1)});
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          target.width() * devicePixelRatioF() < sheet_.image.width());
    painter.drawImage(target, sheet_.image);
    // Where there are too many tiles to show, nothing says which part is none.
    if (sheet_.cutting.tiles.empty()) return;
    painter.drawImage(target, Shade(target));
    const double ratio = devicePixelRatioF();
    painter.setPen(QPen(palette().highlight(), 0));
    for (const PreviewedTile& tile : sheet_.cutting.tiles) {
        const QRectF place = PlaceOf(tile.place);
        if (std::min(place.width(), place.height()) < kSmallestTile) continue;
        // A line is a pixel of the device wide, and stands on the last one of the tile.
        painter.drawRect(place.adjusted(0, 0, -1 / ratio, -1 / ratio));
    }
}

}  // namespace kirto
