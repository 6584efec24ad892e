#include "kit/qt/ui_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

#include "base/core_text.h"

namespace {

constexpr const char* kUiContext = "UiText";
constexpr const char* kCoreContext = "CoreText";
constexpr const char* kOwnFolder = ":/languages/";

QString Translated(const char* context, const char* english) {
    return QCoreApplication::translate(context, english);
}

std::string TranslatedOfCore(const char* english) {
    return Translated(kCoreContext, english).toStdString();
}

// "de-AT" is tried as "de_AT" and "de".
bool Load(QString language, const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name + language.replace('-', '_'), folder)) return false;
    translator->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(translator.release());
}

bool IsEnglish(const QString& language) {
    return language == "C" || language.section('-', 0, 0) == "en";
}

}  // namespace

QString UiText::tr(const char* english) {
    const QString text = Translated(kUiContext, english);
    return text == QString::fromUtf8(english) ? Translated(kCoreContext, english) : text;
}

QString UiText::Count(const char* one, const char* other, int count) {
    const QString text = QCoreApplication::translate(kUiContext, one, other, count);
    if (text != QString::fromUtf8(one)) return text;
    return count == 1 ? text : QString::fromUtf8(other).replace("%n", QString::number(count));
}

QStringList UiText::UserLanguages() {
    QStringList languages;
    for (QString code : qEnvironmentVariable("LANGUAGE").split(':', Qt::SkipEmptyParts))
        languages << code.section('.', 0, 0).replace('_', '-');
    return languages + QLocale::system().uiLanguages();
}

void UiText::UseLanguage(const QStringList& languages) {
    for (const QString& language : languages) {
        if (IsEnglish(language)) return;
        if (!Load(language, "kirto_", kOwnFolder)) continue;
        Load(language, "qtbase_", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        CoreText::SetTranslator(TranslatedOfCore);
        return;
    }
}
