#include "kit/qt/text_picture.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace kirto {

namespace {

constexpr int kLargestText = 8192;  // pixels; no text of a picture is larger

QPainterPath PathOf(const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    QPainterPath path;
    double baseline = metrics.ascent();
    for (const QString& line : text.split('\n')) {
        path.addText(0, baseline, font, line);
        baseline += metrics.lineSpacing();
    }
    return path;
}

}  // namespace

QImage PictureOfText(const QString& text, const TextStyle& style) {
    const QPainterPath path = PathOf(text, style.font);
    if (path.isEmpty()) return {};
    const int margin = style.outline_width + 1;
    const QRect area =
        path.boundingRect().toAlignedRect().adjusted(-margin, -margin, margin, margin);
    if (area.width() > kLargestText || area.height() > kLargestText) return {};
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    if (style.outline_width > 0) {
        // The pen is as wide on the inside, which the letter covers.
        QPen pen(style.outline, 2 * style.outline_width);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.strokePath(path, pen);
    }
    painter.fillPath(path, style.color);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

std::string PngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "PNG")) return {};
    return bytes.toStdString();
}

}  // namespace kirto
