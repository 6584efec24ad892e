// The parsers of ReadImageHeader(), one per format.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "kit/image_header.h"

namespace kirto::image_header {

// The beginning of a file in memory, and the rest within reach. Bytes past the end are zeros.
class Head {
  public:
    explicit Head(BFile& file);

    std::string_view Text() const { return text_; }
    int64 FileSize() const { return file_.Size(); }
    bool Has(size_t offset, std::string_view bytes) const;
    // Of the beginning only.
    uint8 Byte(size_t offset) const;

    // Anywhere in the file.
    void Read(int64 offset, std::span<uint8> bytes);
    uint32 Big16(int64 offset);
    uint32 Big32(int64 offset);
    uint32 Little16(int64 offset);
    uint32 Little32(int64 offset);

  private:
    BFile& file_;
    std::string text_;
};

// Each reads the size that the file says it has; false when it says none. working_bytes: is set
// where it depends on more than the size.
bool ReadPng(Head& head, ImageHeader* header);
bool ReadJpeg(Head& head, ImageHeader* header);
// Leaves the size of an empty canvas open: that of the first image, which may be anything, counts.
bool ReadGif(Head& head, ImageHeader* header);
bool ReadBmp(Head& head, ImageHeader* header);
bool ReadWebP(Head& head, ImageHeader* header);
bool ReadTiff(Head& head, ImageHeader* header);
bool ReadAnyMap(Head& head, ImageHeader* header);
bool ReadXpm(Head& head, ImageHeader* header);
bool ReadXbm(Head& head, ImageHeader* header);
bool ReadWirelessBitmap(Head& head, ImageHeader* header);
// The two below refuse files larger than such files are, and files with more packed texts than a
// picture has reason to carry: their decoders would unpack all of them.
bool ReadMng(Head& head, ImageHeader* header);
// Leaves the size open.
bool ReadIcon(Head& head, ImageHeader* header);
// The largest of the sizes that the first bytes name.
bool ReadHeif(Head& head, ImageHeader* header);
bool ReadJpeg2000(Head& head, ImageHeader* header);
bool ReadJpegXl(Head& head, ImageHeader* header);

}  // namespace kirto::image_header
