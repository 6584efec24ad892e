#pragma once

#include <QIODevice>
#include <vector>

#include "kit/file.h"

namespace kirto {

// A PNG file without the chunks that add nothing to the picture, for Qt to read: texts and profiles
// may unpack to any size, and Qt unpacks them all. Does not own the file.
class PngDevice : public QIODevice {
  public:
    explicit PngDevice(BFile& file);

    bool isSequential() const override { return false; }
    qint64 size() const override { return size_; }

  protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    // A part of the file that is kept.
    struct Part {
        int64 position;  // in this device
        int64 offset;    // in the file
        int64 size;
    };

    void FindParts();
    // Joins it to the part before where they touch.
    void Keep(int64 offset, int64 size);

    BFile& file_;
    std::vector<Part> parts_;
    int64 size_ = 0;
};

}  // namespace kirto
