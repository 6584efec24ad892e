#pragma once

#include "ui/file_panels/ref_filter.h"

// Offers the animations that can be opened, by their names and by their types, and what may lead to
// them.
class KirtoFilter : public BRefFilter {
  public:
    bool Filter(const entry_ref& ref, const TypeSource& type) const override;
};
