#pragma once

#include <QString>
#include <QStringList>

// The texts of windows, in the user's language. Any thread, while there is a QCoreApplication.
//
// lupdate finds the calls by the class's name, which is also the context of their translations; so
// the class is in no namespace.
class UiText {
  public:
    // english: a literal, or what Later() or CoreText::Later() marked. It comes back where there is
    // no translation.
    static QString tr(const char* english);
    // one: for the count 1; other: for all others, with "%n" in place of the count. Other languages
    // have as many forms as they need.
    static QString Count(const char* one, const char* other, int count);
    // The same of a text that stands in a table, and is translated when it is shown.
    static constexpr const char* Later(const char* english) { return english; }

    // What the user wants to read: the variable LANGUAGE, "de:fr", then the languages of the
    // system; best first, as "de-AT" or "de".
    static QStringList UserLanguages();
    // Loads the translations into the first of these languages that there are any, where it is not
    // English, and lets texts of layers without windows be translated. languages: as above. Once,
    // before there are windows.
    static void UseLanguage(const QStringList& languages);
};
