#include "support/fake_roster.h"

#include "base/byte_order.h"

namespace kirto::test {

namespace {

// Mark, colour space, width and height, each in four bytes; then the pixels as they are in memory.
constexpr size_t kHeaderSize = 16;
constexpr int32 kMaxSide = 4096;

translation_format Bitmap() {
    return {B_TRANSLATOR_BITMAP, "image/x-bitmap", "Bitmap", {}};
}

translation_format Raw() {
    return {FakeRoster::kRawFormat, "image/x-raw", "Raw picture", {"raw"}};
}

}  // namespace

std::vector<uint8> RawPicture(const BBitmap& picture) {
    std::vector<uint8> bytes;
    for (const uint32 number :
         {FakeRoster::kRawFormat, static_cast<uint32>(picture.ColorSpace()),
          static_cast<uint32>(picture.Width()), static_cast<uint32>(picture.Height())}) {
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<uint8>(number >> shift));
    }
    bytes.insert(bytes.end(), picture.Bits(), picture.Bits() + picture.BitsLength());
    return bytes;
}

std::vector<uint8> RawPicture(const Picture& picture) {
    return RawPicture(*picture.ToBitmap());
}

status_t FakeRoster::Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                               std::shared_ptr<BBitmap>* result) {
    result->reset();
    if (out_of_memory) throw std::bad_alloc();
    if (read_status != B_OK) return read_status;
    uint8 header[kHeaderSize];
    if (!source.ReadExactly(header, sizeof(header))) return B_NO_TRANSLATOR;
    if (ReadLittle32(header) != kRawFormat) return B_NO_TRANSLATOR;
    const int32 width = static_cast<int32>(ReadLittle32(header + 8));
    const int32 height = static_cast<int32>(ReadLittle32(header + 12));
    if (width > kMaxSide || height > kMaxSide) return B_NO_TRANSLATOR;
    auto picture = std::make_shared<BBitmap>(BRect::OfSize(width, height),
                                             static_cast<color_space>(ReadLittle32(header + 4)),
                                             std::move(budget));
    if (picture->InitCheck() != B_OK) return B_NO_MEMORY;
    if (!source.ReadExactly(picture->Bits(), picture->BitsLength())) return B_NO_TRANSLATOR;
    *result = std::move(picture);
    return B_OK;
}

status_t FakeRoster::Translate(const BBitmap& source, translator_id translator, uint32 format,
                               const BMessage& settings, BFile& destination) {
    if (write_status != B_OK) return write_status;
    if (translator != kRaw || format != kRawFormat) return B_NO_TRANSLATOR;
    {
        const std::lock_guard lock(mutex_);
        written_settings = settings;
    }
    const std::vector<uint8> bytes = RawPicture(source);
    return destination.Write(bytes.data(), bytes.size()) < 0 ? B_IO_ERROR : B_OK;
}

bool FakeRoster::GetTranslatorInfo(translator_id translator, std::string* name) const {
    if (translator == kRaw) *name = "Raw pictures";
    if (translator == kReadOnly) *name = "Pictures to be looked at";
    return translator == kRaw || translator == kReadOnly;
}

std::vector<translation_format> FakeRoster::InputFormats(translator_id) const {
    return {Raw()};
}

std::vector<translation_format> FakeRoster::OutputFormats(translator_id translator) const {
    if (translator == kRaw) return {Bitmap(), Raw()};
    return {Bitmap()};
}

}  // namespace kirto::test
