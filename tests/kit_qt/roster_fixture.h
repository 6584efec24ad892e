// What the tests of the image translators share.
#pragma once

#include <QImage>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "kit/qt/qt_translator_roster.h"
#include "support/test_support.h"

namespace kirto::test {

using Bytes = std::vector<uint8>;
using Pixels = std::vector<uint32>;

// An existing folder that is not Qt's own.
std::string ForeignPluginFolder();

struct Reading {
    status_t status = B_OK;
    std::shared_ptr<BBitmap> bitmap;

    color_space Space() const { return bitmap->ColorSpace(); }
    Pixels Argb() const { return PixelsOf(*bitmap); }
};

// A roster and what tests do with it. Formats are named by their usual extension.
class QtTranslatorRosterTest : public testing::Test {
  protected:
    // 0 where the machine has no plugin for the format.
    translator_id Translator(const std::string& extension) const;
    bool Reads(const std::string& extension) const;
    bool Writes(const std::string& extension) const;

    // The bytes of the picture as a file of the format; none on failure.
    Bytes Write(const std::string& extension, const BBitmap& picture,
                const BMessage& settings = {});
    status_t WriteTo(BFile& file, const std::string& extension, const BBitmap& picture);
    Reading Read(const Bytes& bytes, std::shared_ptr<PixelBudget> budget = nullptr);
    Reading ReadFile(const std::string& path);
    // What is read after writing the picture.
    Reading Copy(const std::string& extension, const BBitmap& picture,
                 const BMessage& settings = {});

    QtTranslatorRoster roster_;

  private:
    // What a process of its own reads is the same.
    void ExpectSameElsewhere(BFile& file, uint64 bytes_left, const Reading& reading);
};

// The image as a file that Qt itself writes.
Bytes FileOf(const QImage& image, const char* qt_format, int quality = -1);
Bytes BytesOf(const std::string& text);
// Appends a chunk of a PNG file.
void AppendChunk(Bytes* png, const std::string& type, const Bytes& data);
// A true-colour PNG that says its size and has next to no data.
Bytes PngHeader(uint32 width, uint32 height);
// width x height pixels of a soft pattern with some noise, opaque.
std::shared_ptr<BBitmap> Photograph(int32 width, int32 height);
BMessage NumberSetting(const char* name, int32 value);
BMessage FlagSetting(const char* name, bool value);

}  // namespace kirto::test
