#include "ui/thumbnails/targa_file.h"

#include <algorithm>

#include "base/text.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr char kEnding[] = ".tga";
constexpr size_t kEndingLength = sizeof kEnding - 1;
constexpr size_t kMaxFileName = 255;

bool HasEnding(const std::string& name) {
    return name.size() > kEndingLength &&
           std::equal(name.end() - kEndingLength, name.end(), kEnding, [](char a, char b) {
               const bool upper = a >= 'A' && a <= 'Z';
               return (upper ? a - 'A' + 'a' : a) == b;
           });
}

// 0 when none writes Targa.
translator_id TargaTranslator(const BTranslatorRoster& roster) {
    for (const translator_id translator : roster.Translators()) {
        for (const translation_format& format : roster.OutputFormats(translator)) {
            if (format.type == B_TGA_FORMAT) return translator;
        }
    }
    return 0;
}

}  // namespace

std::string TargaFileName(const std::string& frame_name) {
    std::string name = frame_name.empty() ? "frame" : frame_name;
    std::replace(name.begin(), name.end(), '/', '_');
    if (HasEnding(name)) return name;
    return std::string(CutUtf8(name, kMaxFileName - kEndingLength)) + kEnding;
}

bool WriteTargaFile(const BBitmap& picture, const std::string& path, BTranslatorRoster& roster) {
    const translator_id translator = TargaTranslator(roster);
    if (translator == 0) return false;
    const std::unique_ptr<BFile> file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) return false;
    const BMessage settings = roster.DefaultSettings(translator);
    if (roster.Translate(picture, translator, B_TGA_FORMAT, settings, *file) != B_OK) return false;
    file->SetMimeType("image/x-targa");
    return file->Commit() == B_OK;
}

}  // namespace kirto
