// A translator roster in plain C++, for tests of what reads and writes pictures.
#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "kit/translator_roster.h"
#include "picture/picture.h"

namespace kirto::test {

// The bytes of a file that FakeRoster reads as this picture, in any colour space, and that it
// writes for it.
std::vector<uint8> RawPicture(const BBitmap& picture);
std::vector<uint8> RawPicture(const Picture& picture);

// Knows two translators. One reads and writes raw pictures; the other can only read, so that it has
// no file format to write. Tests write the public fields while nobody else uses the roster.
class FakeRoster : public BTranslatorRoster {
  public:
    static constexpr translator_id kRaw = 1;
    static constexpr translator_id kReadOnly = 2;
    static constexpr uint32 kRawFormat = FourCharCode("rawp");

    status_t read_status = B_OK;   // other than B_OK: what reading fails with
    bool out_of_memory = false;    // reading throws what the standard library throws then
    status_t write_status = B_OK;  // other than B_OK: what writing fails with
    BMessage written_settings;     // that the last picture was written with

    status_t Translate(BFile& source, std::shared_ptr<PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override;
    status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                       const BMessage& settings, BFile& destination) override;
    std::vector<translator_id> Translators() const override { return {kRaw, kReadOnly}; }
    bool GetTranslatorInfo(translator_id translator, std::string* name) const override;
    std::vector<translation_format> InputFormats(translator_id translator) const override;
    std::vector<translation_format> OutputFormats(translator_id translator) const override;
    BMessage DefaultSettings(translator_id) const override { return BMessage(); }

  private:
    std::mutex mutex_;  // guards what writing changes
};

}  // namespace kirto::test
