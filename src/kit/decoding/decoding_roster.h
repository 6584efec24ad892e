#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "kit/decoding/decoder_process.h"
#include "kit/translator_roster.h"

namespace kirto {

// Reads image files in processes of their own, which are kept for the next file of the same format:
// as many as there are threads that read at a time. Whatever a file does to its process, this reads
// it as if nothing could read it, and the next file gets a new one. Everything else is another
// roster's work.
class DecodingRoster : public BTranslatorRoster {
  public:
    // program: path of the decoder. others: outlives this.
    DecodingRoster(std::string program, BTranslatorRoster& others,
                   DecoderProcess::Limits limits = {});

    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override;
    status_t TranslateUnless(const std::function<bool()>& given_up, BFile& source,
                             std::shared_ptr<PixelBudget> budget,
                             std::shared_ptr<BBitmap>* result) override;
    std::unique_ptr<AnimatedImageReader> ReadAnimatedImage(AnimatedImageFormat format,
                                                           std::span<const uint8> file,
                                                           uint64 pixel_bytes) const override;
    std::unique_ptr<AnimatedImageWriter> WriteAnimatedImage(
        AnimatedImageFormat format, const AnimatedImageHeader& header,
        const AnimatedImageQuality& quality) const override {
        return others_.WriteAnimatedImage(format, header, quality);
    }

    status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                       const BMessage& settings, BFile& destination) override {
        return others_.Translate(source, translator, format, settings, destination);
    }
    std::vector<translator_id> Translators() const override { return others_.Translators(); }
    bool GetTranslatorInfo(translator_id translator, std::string* name) const override {
        return others_.GetTranslatorInfo(translator, name);
    }
    std::vector<translation_format> InputFormats(translator_id translator) const override {
        return others_.InputFormats(translator);
    }
    std::vector<translation_format> OutputFormats(translator_id translator) const override {
        return others_.OutputFormats(translator);
    }
    BMessage DefaultSettings(translator_id translator) const override {
        return others_.DefaultSettings(translator);
    }

  private:
    using Processes = std::vector<std::unique_ptr<DecoderProcess>>;

    std::unique_ptr<DecoderProcess> TakeProcess(const std::string& format, uint64 memory) const;
    std::unique_ptr<DecoderProcess> NewProcess(const std::string& format, uint64 memory) const;
    void GiveBack(const std::string& format, std::unique_ptr<DecoderProcess> process);

    const std::string program_;
    BTranslatorRoster& others_;
    const DecoderProcess::Limits limits_;
    mutable std::mutex mutex_;
    mutable std::map<std::string, Processes> idle_;  // guarded by it; by format
};

}  // namespace kirto
