#pragma once

#include <QIODevice>

#include "kit/file.h"

namespace kirto {

// Lets Qt read from and write to a BFile. Does not own the file. Every write reports exactly what
// the file took, so a full disk is never mistaken for success.
class FileDevice : public QIODevice {
  public:
    FileDevice(BFile& file, OpenMode mode);

    bool isSequential() const override { return false; }
    qint64 size() const override { return file_.Size(); }
    bool seek(qint64 position) override;

  protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

  private:
    BFile& file_;
};

}  // namespace kirto
