#pragma once

#include <QTranslator>

namespace kirto {

// A language whose words are half as long again as the English ones, between brackets that show
// where some of them are missing.
class LongWords : public QTranslator {
  public:
    QString translate(const char*, const char* source, const char*, int) const override {
        const QString text = QString::fromUtf8(source);
        if (text.isEmpty()) return {};
        return "[" + text + QString(text.size() / 2, QChar(0x00E5)) + "]";
    }
    bool isEmpty() const override { return false; }
};

}  // namespace kirto
