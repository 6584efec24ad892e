#include "platform/qt/qt_translator_roster.h"

#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QLibraryInfo>
#include <algorithm>
#include <cstring>

#include "platform/qt/file_device.h"
#include "platform/qt/picture_image.h"
#include "platform/qt/straight_tiff.h"
#include "platform/targa.h"

namespace kirto {

namespace {

bool IsTarga(const ImageFormat& format) {
    return *format.qt_name == '\0';
}

// Qt's own Targa reader knows only some of the format's forms, and to Qt many a Targa file looks
// like a Windows cursor.
bool MayBeTarga(const QByteArray& qt_format) {
    return qt_format.isEmpty() || qt_format == "tga" || qt_format == "ico" || qt_format == "cur";
}

std::shared_ptr<BBitmap> BitmapOf(const QImage& image, std::shared_ptr<PixelBudget> budget) {
    const bool has_alpha = image.hasAlphaChannel();
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(image.width(), image.height()),
                                            has_alpha ? B_RGBA32 : B_RGB32, std::move(budget));
    if (bitmap->InitCheck() != B_OK) return nullptr;
    const QImage pixels =
        image.convertToFormat(has_alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (pixels.isNull()) return nullptr;
    for (int32 y = 0; y < bitmap->Height(); ++y) {
        std::memcpy(bitmap->Row(y), pixels.constScanLine(y), bitmap->BytesPerRow());
    }
    return bitmap;
}

// Bytes that the budget still allows.
uint64 BytesLeft(const PixelBudget* budget) {
    const uint64 limit = budget ? budget->Limit() : PixelBudget::DefaultLimit();
    const uint64 used = budget ? budget->Used() : 0;
    return limit > used ? limit - used : 0;
}

// Qt's own limit, in its whole mebibytes, for pictures that tell their size only while they are
// decoded. It leaves room for pixels of 16 bits a channel, which take twice the bytes until they
// are converted; the bitmap's own reservation is exact.
int AllocationLimit(const PixelBudget* budget) {
    return static_cast<int>(std::min<uint64>((BytesLeft(budget) >> 19) + 1, 1 << 20));
}

bool FitsBudget(QSize size, const PixelBudget* budget) {
    if (!size.isValid()) return true;
    const uint64 pixels = static_cast<uint64>(size.width()) * static_cast<uint64>(size.height());
    return pixels <= BytesLeft(budget) / 4;
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
    FileDevice device(source, QIODevice::ReadOnly);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.canRead() ? reader.format() : QByteArray();
    if (MayBeTarga(format)) {
        const status_t status = ReadTarga(source, budget, result);
        if (status != B_BAD_DATA) return status;
        if (format.isEmpty() || format == "tga") return B_NO_TRANSLATOR;
        device.seek(0);
    }
    if (format == "tiff" || format == "tif") {
        const status_t status = ReadStraightTiff(source, budget, result);
        if (status != B_BAD_DATA) return status;
        device.seek(0);
    }
    if (!FitsBudget(reader.size(), budget.get())) return B_NO_MEMORY;
    QImageReader::setAllocationLimit(AllocationLimit(budget.get()));
    const QImage image = reader.read();
    if (image.isNull()) return B_NO_TRANSLATOR;
    *result = BitmapOf(image, std::move(budget));
    return *result ? B_OK : B_NO_MEMORY;
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
