#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "base/types.h"
#include "kit/animated_image.h"
#include "kit/animated_image_writer.h"
#include "kit/bitmap.h"
#include "kit/file.h"
#include "kit/message.h"

using translator_id = uint32;

// The generic picture format that every translator reads into or writes from.
inline constexpr uint32 B_TRANSLATOR_BITMAP = kirto::FourCharCode("bits");
// Targa files.
inline constexpr uint32 B_TGA_FORMAT = kirto::FourCharCode("TGA ");

// One format that a translator reads or writes.
struct translation_format {
    uint32 type = 0;                      // four-character code
    std::string mime;                     // "image/png"
    std::string name;                     // "PNG image"
    std::vector<std::string> extensions;  // without dot, lower case, the usual one first
};

// Turns image files into pictures and pictures into image files. One roster per process, owned by
// the program's main function. Thread-safe.
class BTranslatorRoster {
  public:
    virtual ~BTranslatorRoster() = default;

    // Reads the file as a picture: B_RGBA32 when the file has alpha, else B_RGB32 with alpha 255;
    // not premultiplied, orientation applied. B_NO_TRANSLATOR when nothing reads it, B_NO_MEMORY
    // when the budget refuses it. The result is null on failure.
    virtual status_t Translate(BFile& source, std::shared_ptr<kirto::PixelBudget> budget,
                               std::shared_ptr<BBitmap>* result) = 0;

    // The same for whoever may lose interest meanwhile. given_up: asked every now and then, on this
    // thread, whether to end early with B_CANCELED, by a roster that can.
    virtual status_t TranslateUnless(const std::function<bool()>& /*given_up*/, BFile& source,
                                     std::shared_ptr<kirto::PixelBudget> budget,
                                     std::shared_ptr<BBitmap>* result) {
        return Translate(source, std::move(budget), result);
    }

    // What reads the frames of an animated image; null when nothing does. file: all of its bytes,
    // which outlive the result. pixel_bytes: what its canvas may take.
    virtual std::unique_ptr<kirto::AnimatedImageReader> ReadAnimatedImage(
        kirto::AnimatedImageFormat, std::span<const uint8> /*file*/, uint64 /*pixel_bytes*/) const {
        return nullptr;
    }

    // What writes the frames of an animated image; null when nothing does.
    virtual std::unique_ptr<kirto::AnimatedImageWriter> WriteAnimatedImage(
        kirto::AnimatedImageFormat, const kirto::AnimatedImageHeader&,
        const kirto::AnimatedImageQuality&) const {
        return nullptr;
    }

    // Writes the picture in one of the translator's output formats. settings: the translator's own
    // named values, absent ones at their defaults.
    virtual status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                               const BMessage& settings, BFile& destination) = 0;

    // The ids of all translators, ascending from 1 and the same in every run on one machine.
    virtual std::vector<translator_id> Translators() const = 0;
    // False when there is no such translator.
    virtual bool GetTranslatorInfo(translator_id translator, std::string* name) const = 0;
    virtual std::vector<translation_format> InputFormats(translator_id translator) const = 0;
    // Includes B_TRANSLATOR_BITMAP where the translator can read.
    virtual std::vector<translation_format> OutputFormats(translator_id translator) const = 0;
    // The settings the translator knows, each with its default value; empty for none.
    virtual BMessage DefaultSettings(translator_id translator) const = 0;
};
