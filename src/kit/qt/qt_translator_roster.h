#pragma once

#include <mutex>
#include <vector>

#include "kit/qt/image_format.h"
#include "kit/translator_roster.h"

namespace kirto {

// The image formats of Qt's installed plugins, one translator a format, and Targa. Our own parsers
// look at a file first: they choose the one decoder that will see it, refuse pictures by their size
// and take away what could lead a decoder to other files or make it unpack without end. Needs a
// QGuiApplication while it is used.
class QtTranslatorRoster : public BTranslatorRoster {
  public:
    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override;
    status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                       const BMessage& settings, BFile& destination) override;
    std::unique_ptr<AnimatedImageReader> ReadAnimatedImage(AnimatedImageFormat format,
                                                           std::span<const uint8> file,
                                                           uint64 pixel_bytes) const override;
    std::unique_ptr<AnimatedImageWriter> WriteAnimatedImage(
        AnimatedImageFormat format, const AnimatedImageHeader& header,
        const AnimatedImageQuality& quality) const override;
    std::vector<translator_id> Translators() const override;
    bool GetTranslatorInfo(translator_id translator, std::string* name) const override;
    std::vector<translation_format> InputFormats(translator_id translator) const override;
    std::vector<translation_format> OutputFormats(translator_id translator) const override;
    BMessage DefaultSettings(translator_id translator) const override;

    // Keeps Qt from loading plugins from anywhere but its own installed folder. Call before the
    // QGuiApplication is made, and once more after it, as it adds the program's own folder.
    static void RestrictPluginFolders();

  private:
    struct Entry {
        const ImageFormat* format;
        bool reads;
        bool writes;
    };
    // What is installed; plugins are looked for when it is first asked.
    const std::vector<Entry>& Entries() const;
    const Entry* EntryFor(translator_id translator) const;

    mutable std::once_flag entries_found_;
    mutable std::vector<Entry> entries_;
};

}  // namespace kirto
