#include "picture_folder.h"

#include <QCryptographicHash>
#include <QImage>
#include <QPixmap>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <vector>

namespace kirto {

namespace {

constexpr int kSquare = 64;  // pixels a side
constexpr int kDigits = 6;   // of each checksum

std::string FingerprintOf(const QImage& image) {
    std::ostringstream text;
    text << image.width() << ' ' << image.height();
    for (int top = 0; top < image.height(); top += kSquare) {
        for (int left = 0; left < image.width(); left += kSquare) {
            const QImage square = image
                                      .copy(left, top, std::min(kSquare, image.width() - left),
                                            std::min(kSquare, image.height() - top))
                                      .convertToFormat(QImage::Format_RGB888);
            QCryptographicHash sum(QCryptographicHash::Md5);
            for (int y = 0; y < square.height(); ++y)
                sum.addData(QByteArrayView(square.constScanLine(y), 3 * square.width()));
            text << ' ' << sum.result().toHex().left(kDigits).constData();
        }
    }
    return text.str();
}

std::map<std::string, std::string> FingerprintsIn(std::istream& file) {
    std::map<std::string, std::string> fingerprints;
    for (std::string line; std::getline(file, line);) {
        const size_t space = line.find(' ');
        if (space != std::string::npos)
            fingerprints.emplace(line.substr(0, space), line.substr(space + 1));
    }
    return fingerprints;
}

// What differs, in a user's words.
std::string Difference(const std::string& now, const std::string& approved) {
    std::istringstream now_words(now);
    std::istringstream approved_words(approved);
    int width = 0, height = 0, approved_width = 0, approved_height = 0;
    now_words >> width >> height;
    approved_words >> approved_width >> approved_height;
    std::ostringstream text;
    if (width != approved_width || height != approved_height) {
        text << width << " x " << height << " pixels, not " << approved_width << " x "
             << approved_height;
        return text.str();
    }
    const int columns = (width + kSquare - 1) / kSquare;
    int squares = 0, left = columns, top = height, right = 0, bottom = 0;
    std::string sum, approved_sum;
    for (int i = 0; now_words >> sum && approved_words >> approved_sum; ++i) {
        if (sum == approved_sum) continue;
        ++squares;
        left = std::min(left, i % columns);
        right = std::max(right, i % columns + 1);
        top = std::min(top, i / columns);
        bottom = std::max(bottom, i / columns + 1);
    }
    text << squares << " squares, between " << left * kSquare << ", " << top * kSquare << " and "
         << std::min(width, right * kSquare) << ", " << std::min(height, bottom * kSquare);
    return text.str();
}

}  // namespace

void PictureFolder::Add(QWidget& window, const std::string& name) {
    const QImage image = window.grab().toImage();
    const QString path = QString::fromStdString(folder_ + "/" + name + ".png");
    if (!image.save(path)) {
        std::fprintf(stderr, "kirto-pictures: %s can't be written.\n", qPrintable(path));
        Miss();
        return;
    }
    fingerprints_[name] = FingerprintOf(image);
}

bool PictureFolder::WriteFingerprints(const std::string& path) const {
    std::ofstream file(path);
    for (const auto& [name, fingerprint] : fingerprints_)
        file << name << ' ' << fingerprint << '\n';
    return file.flush().good();
}

int PictureFolder::CountDifferences(const std::string& path) const {
    std::ifstream file(path);
    if (!file) return -1;
    const std::map<std::string, std::string> approved = FingerprintsIn(file);
    int differences = 0;
    for (const auto& [name, fingerprint] : fingerprints_) {
        const auto found = approved.find(name);
        if (found != approved.end() && found->second == fingerprint) continue;
        ++differences;
        std::printf(
            "%s/%s.png: %s\n", folder_.c_str(), name.c_str(),
            found == approved.end() ? "new" : Difference(fingerprint, found->second).c_str());
    }
    for (const auto& [name, fingerprint] : approved) {
        if (fingerprints_.contains(name)) continue;
        ++differences;
        std::printf("%s/%s.png: missing\n", folder_.c_str(), name.c_str());
    }
    return differences;
}

}  // namespace kirto
