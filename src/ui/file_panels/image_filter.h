#pragma once

#include <string>

#include "kit/translator_roster.h"
#include "ui/file_panels/ref_filter.h"

// Offers the files that can be read as pictures, and what may lead to them.
class ImageFilter : public BRefFilter {
  public:
    // Notes the types of all formats that the roster reads.
    explicit ImageFilter(const BTranslatorRoster& roster);

    bool Filter(const entry_ref& ref, const TypeSource& type) const override;

  private:
    std::string image_types_;  // one after the other, with spaces between
};
