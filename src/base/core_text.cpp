#include "base/core_text.h"

#include <atomic>

namespace {

constexpr int kMostPlaces = 9;

std::atomic<CoreText::Translator> g_translator = nullptr;

}  // namespace

std::string CoreText::tr(const char* english) {
    const Translator translator = g_translator;
    return translator ? translator(english) : english;
}

std::string CoreText::With(const std::string& text, std::initializer_list<std::string> values) {
    std::string filled;
    size_t start = 0;
    for (size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
        const int place = at + 1 < text.size() ? text[at + 1] - '0' : 0;
        if (place < 1 || place > kMostPlaces || static_cast<size_t>(place) > values.size()) continue;
        filled.append(text, start, at - start);
        filled += values.begin()[place - 1];
        start = at + 2;
    }
    return filled.append(text, start);
}

void CoreText::SetTranslator(Translator translator) {
    g_translator = translator;
}
