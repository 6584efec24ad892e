// Text as a picture.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>
#include <string>

namespace kirto {

struct TextStyle {
    QFont font;  // with a size in pixels
    QColor color = Qt::white;
    QColor outline = Qt::black;
    int outline_width = 0;  // on each side of a letter's edge, pixels
};

// The text on a transparent picture that is just large enough, with alpha that is not
// premultiplied; lines are broken where it has line breaks. Null for text that shows nothing. GUI
// thread.
QImage PictureOfText(const QString& text, const TextStyle& style);

// The image as a PNG file, the form in which commands carry pictures. Empty for a null image, or
// when memory is short.
std::string PngOf(const QImage& image);

}  // namespace kirto
