#include "ui/file_panels/image_filter.h"

#include "base/text.h"

ImageFilter::ImageFilter(const BTranslatorRoster& roster) {
    for (const translator_id translator : roster.Translators()) {
        for (const translation_format& format : roster.InputFormats(translator))
            image_types_ += format.mime + " ";
    }
}

bool ImageFilter::Filter(const entry_ref&, const TypeSource& type) const {
    const std::string entry_type = type();
    if (kirto::LeadsToFiles(entry_type)) return true;
    return !entry_type.empty() && kirto::Contains(image_types_, entry_type);
}
