#include "kit/qt/file_device.h"

namespace kirto {

FileDevice::FileDevice(BFile& file, OpenMode mode) : file_(file) {
    file_.Seek(0, SEEK_FROM_START);
    // Unbuffered: the file has its own buffer, and positions must agree.
    open(mode | Unbuffered);
}

bool FileDevice::seek(qint64 position) {
    return QIODevice::seek(position) && file_.Seek(position, SEEK_FROM_START) == position;
}

qint64 FileDevice::readData(char* data, qint64 size) {
    const int64 count = file_.Read(data, static_cast<size_t>(size));
    return count < 0 ? -1 : count;
}

qint64 FileDevice::writeData(const char* data, qint64 size) {
    const int64 count = file_.Write(data, static_cast<size_t>(size));
    return count < 0 ? -1 : count;
}

}  // namespace kirto
