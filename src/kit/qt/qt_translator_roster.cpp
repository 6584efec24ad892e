#include "kit/qt/qt_translator_roster.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QLibraryInfo>
#include <algorithm>
#include <cstring>
#include <functional>

#include "kit/animated/apng_reader.h"
#include "kit/animated/webp_reader.h"
#include "kit/animated/webp_writer.h"
#include "kit/image_header.h"
#include "kit/qt/file_device.h"
#include "kit/qt/image_bitmap.h"
#include "kit/qt/picture_image.h"
#include "kit/qt/png_device.h"
#include "kit/qt/safe_drawing.h"
#include "kit/qt/straight_tiff.h"
#include "kit/targa.h"

namespace kirto {

namespace {

bool IsTarga(const ImageFormat& format) {
    return *format.qt_name == '\0';
}

bool Is(const ImageHeader& header, const char* format) {
    return std::strcmp(header.format, format) == 0;
}

// Targa files have no signature, and many look like Windows cursors.
bool MayBeTarga(const ImageHeader& header) {
    return Is(header, "") || Is(header, "ico");
}

// Bytes that the budget still allows.
uint64 BytesLeft(const PixelBudget* budget) {
    return budget ? budget->Left() : PixelBudget::DefaultLimit();
}

// Qt's own limit, in its whole mebibytes, for pictures that tell their size only while they are
// decoded. It leaves room for pixels of 16 bits a channel, which take twice the bytes until they
// are converted; the bitmap's own reservation is exact.
int AllocationLimit(const PixelBudget* budget) {
    return static_cast<int>(std::min<uint64>((BytesLeft(budget) >> 19) + 1, 1 << 20));
}

bool FitsBudget(const ImageHeader& header, const PixelBudget* budget) {
    const uint64 left = BytesLeft(budget);
    return header.Pixels() <= left / 4 &&
           4 * header.Pixels() + header.working_bytes <= left + PixelBudget::kWorkingRoom;
}

// Whether the picture as Qt decodes it finds room beside the bitmap that is made of it.
bool FitsTwice(const QImageReader& reader, const ImageHeader& header, const PixelBudget* budget) {
    // Some readers answer with what is no format at all.
    const auto number = static_cast<int>(reader.imageFormat());
    const bool known = number > QImage::Format_Invalid && number < QImage::NImageFormats;
    const auto format = known ? static_cast<QImage::Format>(number) : QImage::Format_ARGB32;
    const uint64 bits = QImage::toPixelFormat(format).bitsPerPixel();
    const bool turned = reader.transformation() != QImageIOHandler::TransformationNone;
    const uint64 bytes = (turned ? 2 : 1) * (header.Pixels() * bits / 8);
    return 4 * header.Pixels() + header.working_bytes + bytes <=
           BytesLeft(budget) + PixelBudget::kWorkingRoom;
}

// The format's decoder alone sees the file.
status_t Decode(QIODevice& device, const ImageHeader& header, std::shared_ptr<PixelBudget> budget,
                std::shared_ptr<BBitmap>* result) {
    QImageReader reader(&device, header.format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(AllocationLimit(budget.get()));
    if (!reader.canRead()) return B_NO_TRANSLATOR;
    ImageHeader size = header;
    // Headers that leave the size open are those of formats that tell it without decoding.
    if (header.Pixels() == 0 && reader.size().isValid()) {
        size.width = static_cast<uint64>(reader.size().width());
        size.height = static_cast<uint64>(reader.size().height());
        if (!FitsBudget(size, budget.get())) return B_NO_MEMORY;
    }
    if (DecodesInPlace(reader)) return ReadInPlace(reader, std::move(budget), result);
    if (!FitsTwice(reader, size, budget.get())) return B_NO_MEMORY;
    const QImage image = reader.read();
    if (image.isNull()) return B_NO_TRANSLATOR;
    *result = BitmapOf(image, std::move(budget));
    return *result ? B_OK : B_NO_MEMORY;
}

status_t DecodeFile(BFile& source, const ImageHeader& header, std::shared_ptr<PixelBudget> budget,
                    std::shared_ptr<BBitmap>* result) {
    if (Is(header, "png")) {
        PngDevice device(source);
        return Decode(device, header, std::move(budget), result);
    }
    FileDevice device(source, QIODevice::ReadOnly);
    return Decode(device, header, std::move(budget), result);
}

// Reads the pictures within one drawing. They count against a ceiling together.
class EmbeddedImages {
  public:
    explicit EmbeddedImages(const PixelBudget* budget)
        : bytes_left_(std::min(BytesLeft(budget), kMostBytes)) {}

    QByteArray operator()(const QByteArray& bytes) {
        const auto file = BFile::OnMemory({bytes.begin(), bytes.end()});
        const ImageHeader header = ReadImageHeader(*file);
        const bool allowed = Is(header, "png") || Is(header, "jpeg") || Is(header, "gif") ||
                             Is(header, "webp") || Is(header, "bmp");
        const auto budget = std::make_shared<PixelBudget>(bytes_left_);
        if (!allowed || !FitsBudget(header, budget.get())) return {};
        std::shared_ptr<BBitmap> bitmap;
        if (DecodeFile(*file, header, budget, &bitmap) != B_OK) return {};
        bytes_left_ -= bitmap->BitsLength();
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        return ImageOfPicture(*bitmap).save(&png, "png") ? png.data() : QByteArray();
    }

  private:
    static constexpr uint64 kMostBytes = uint64{256} << 20;

    uint64 bytes_left_;
};

status_t DecodeDrawing(BFile& source, const ImageHeader& header,
                       std::shared_ptr<PixelBudget> budget, std::shared_ptr<BBitmap>* result) {
    QByteArray drawing;
    EmbeddedImages embedded(budget.get());
    const status_t status = ReadSafeDrawing(source, std::ref(embedded), &drawing);
    if (status == B_BAD_DATA) return B_NO_TRANSLATOR;
    if (status != B_OK) return status;
    QBuffer device(&drawing);
    device.open(QIODevice::ReadOnly);
    return Decode(device, header, std::move(budget), result);
}

// The settings that the format has, absent ones and those of another kind at its defaults, as Qt's
// writer knows them.
void ApplySettings(const BMessage& settings, const ImageFormat& format, QImageWriter* writer) {
    const auto number = [&](const char* name, int32* value) {
        if (format.settings.FindInt32(name, value) != B_OK) return false;
        settings.FindInt32(name, value);
        return true;
    };
    const auto flag = [&](const char* name, bool* value) {
        if (format.settings.FindBool(name, value) != B_OK) return false;
        settings.FindBool(name, value);
        return true;
    };
    int32 value = 0;
    bool on = false;
    if (number("quality", &value)) writer->setQuality(std::clamp(value, 0, 100));
    // 100 is how the WebP writer is asked for lossless files; below it, they are lossy.
    if (flag("lossless", &on)) writer->setQuality(on ? 100 : std::clamp(value, 0, 99));
    // Qt counts PNG's levels 0 to 9 as per cent, rounding down.
    if (number("compression", &value)) {
        writer->setCompression((std::clamp(value, 0, 9) * 100 + 8) / 9);
    }
    if (flag("compression", &on)) writer->setCompression(on ? 1 : 0);
}

status_t WriteTargaImage(const BBitmap& source, const BMessage& settings, const ImageFormat& format,
                         BFile& destination) {
    bool packed = false;
    format.settings.FindBool("rle", &packed);
    settings.FindBool("rle", &packed);
    const QImage image = ImageOfPicture(source);
    const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888);
    if (rgba.isNull()) return B_NO_MEMORY;
    return WriteTarga(rgba.constBits(), rgba.width(), rgba.height(), image.hasAlphaChannel(),
                      packed, destination);
}

}  // namespace

const std::vector<QtTranslatorRoster::Entry>& QtTranslatorRoster::Entries() const {
    std::call_once(entries_found_, [this] {
        const QList<QByteArray> readable = QImageReader::supportedImageFormats();
        const QList<QByteArray> writable = QImageWriter::supportedImageFormats();
        for (const ImageFormat& format : KnownImageFormats()) {
            const bool reads = IsTarga(format) || readable.contains(format.qt_name);
            const bool writes = IsTarga(format) || writable.contains(format.qt_name);
            if (reads || writes) entries_.push_back({&format, reads, writes});
        }
    });
    return entries_;
}

void QtTranslatorRoster::RestrictPluginFolders() {
    qunsetenv("QT_PLUGIN_PATH");
    qunsetenv("QT_QPA_PLATFORM_PLUGIN_PATH");
    QCoreApplication::setLibraryPaths({QLibraryInfo::path(QLibraryInfo::PluginsPath)});
}

status_t QtTranslatorRoster::Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                                       std::shared_ptr<BBitmap>* result) {
    result->reset();
    if (source.InitCheck() != B_OK) return source.InitCheck();
    const ImageHeader header = ReadImageHeader(source);
    if (MayBeTarga(header)) {
        const status_t status = ReadTarga(source, budget, result);
        if (status != B_BAD_DATA) return status;
    }
    if (Is(header, "")) return B_NO_TRANSLATOR;
    if (!FitsBudget(header, budget.get())) return B_NO_MEMORY;
    if (Is(header, "svg")) return DecodeDrawing(source, header, std::move(budget), result);
    if (Is(header, "tiff")) {
        source.Seek(0, SEEK_FROM_START);
        const status_t status = ReadStraightTiff(source, budget, result);
        if (status != B_BAD_DATA) return status;
    }
    return DecodeFile(source, header, std::move(budget), result);
}

status_t QtTranslatorRoster::Translate(const BBitmap& source, translator_id translator,
                                       uint32 format, const BMessage& settings,
                                       BFile& destination) {
    const Entry* entry = EntryFor(translator);
    if (!entry || !entry->writes || format != entry->format->format.type) return B_NO_TRANSLATOR;
    if (source.InitCheck() != B_OK || !Is32Bit(source.ColorSpace())) return B_BAD_TYPE;
    if (IsTarga(*entry->format)) {
        return WriteTargaImage(source, settings, *entry->format, destination);
    }
    const QImage image = ImageOfPicture(source);
    if (image.isNull()) return B_NO_MEMORY;
    FileDevice device(destination, QIODevice::WriteOnly);
    QImageWriter writer(&device, entry->format->qt_name);
    ApplySettings(settings, *entry->format, &writer);
    if (!writer.write(image)) return B_IO_ERROR;
    return destination.WriteStatus();
}

std::unique_ptr<AnimatedImageReader> QtTranslatorRoster::ReadAnimatedImage(
    AnimatedImageFormat format, std::span<const uint8> file, uint64 pixel_bytes) const {
    switch (format) {
        case AnimatedImageFormat::kWebp:
            return std::make_unique<WebpReader>(file, pixel_bytes);
        case AnimatedImageFormat::kApng:
            return std::make_unique<ApngReader>(file, pixel_bytes);
        case AnimatedImageFormat::kNone:
            break;
    }
    return nullptr;
}

std::unique_ptr<AnimatedImageWriter> QtTranslatorRoster::WriteAnimatedImage(
    AnimatedImageFormat format, const AnimatedImageHeader& header,
    const AnimatedImageQuality& quality) const {
    if (format != AnimatedImageFormat::kWebp) return nullptr;
    return std::make_unique<WebpWriter>(header, quality);
}

std::vector<translator_id> QtTranslatorRoster::Translators() const {
    std::vector<translator_id> ids;
    for (const Entry& entry : Entries())
        ids.push_back(entry.format->id);
    return ids;
}

bool QtTranslatorRoster::GetTranslatorInfo(translator_id translator, std::string* name) const {
    const Entry* entry = EntryFor(translator);
    if (entry) *name = entry->format->format.name;
    return entry != nullptr;
}

std::vector<translation_format> QtTranslatorRoster::InputFormats(translator_id translator) const {
    const Entry* entry = EntryFor(translator);
    if (!entry || !entry->reads) return {};
    return {entry->format->format};
}

std::vector<translation_format> QtTranslatorRoster::OutputFormats(translator_id translator) const {
    std::vector<translation_format> formats;
    const Entry* entry = EntryFor(translator);
    if (entry && entry->reads) {
        formats.push_back({B_TRANSLATOR_BITMAP, "image/x-be-bitmap", "Bitmap", {}});
    }
    if (entry && entry->writes) formats.push_back(entry->format->format);
    return formats;
}

BMessage QtTranslatorRoster::DefaultSettings(translator_id translator) const {
    const Entry* entry = EntryFor(translator);
    return entry && entry->writes ? entry->format->settings : BMessage();
}

const QtTranslatorRoster::Entry* QtTranslatorRoster::EntryFor(translator_id translator) const {
    for (const Entry& entry : Entries()) {
        if (entry.format->id == translator) return &entry;
    }
    return nullptr;
}

}  // namespace kirto
