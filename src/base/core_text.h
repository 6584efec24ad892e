#pragma once

#include <initializer_list>
#include <string>

// The texts that layers without windows have for the user, in the user's language where the program
// has translators, in English elsewhere: of alerts, notices, the status line, and the names of
// edits. Any thread.
//
// lupdate finds the calls by the class's name, which is also the context of their translations; so
// the class is in no namespace.
class CoreText {
  public:
    // english: a literal.
    static std::string tr(const char* english);
    // The same of a text that stands in a table, and is translated when it is shown.
    static constexpr const char* Later(const char* english) { return english; }
    // The text with its "%1", "%2", ... replaced by the values, which are taken as they are.
    static std::string With(const std::string& text, std::initializer_list<std::string> values);

    // Translates; set before other threads are there. Null, as at first: all stays English.
    using Translator = std::string (*)(const char* english);
    static void SetTranslator(Translator translator);
};
