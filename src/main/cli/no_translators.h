#pragma once

#include "kit/translator_roster.h"

namespace kirto {

// The roster of a program that reads and writes no image files.
class NoTranslators : public BTranslatorRoster {
  public:
    status_t Translate(BFile&, std::shared_ptr<PixelBudget>, std::shared_ptr<BBitmap>*) override {
        return B_NO_TRANSLATOR;
    }
    status_t Translate(const BBitmap&, translator_id, uint32, const BMessage&, BFile&) override {
        return B_NO_TRANSLATOR;
    }
    std::vector<translator_id> Translators() const override { return {}; }
    bool GetTranslatorInfo(translator_id, std::string*) const override { return false; }
    std::vector<translation_format> InputFormats(translator_id) const override { return {}; }
    std::vector<translation_format> OutputFormats(translator_id) const override { return {}; }
    BMessage DefaultSettings(translator_id) const override { return BMessage(); }
};

}  // namespace kirto
