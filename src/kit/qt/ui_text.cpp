#include "kit/qt/ui_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

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

// "zh-Hans-CN" is tried as "zh_Hans_CN", "zh_Hans" and "zh".
bool Load(const QString& language, const QString& name, const QString& folder) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    QString code = language;
    if (translator->load(name + code.replace('-', '_'), folder))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
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

void UiText::UseLanguage(const QStringList& languages) {
    for (const QString& language : languages) {
        if (IsEnglish(language)) return;
        if (!Load(language, "kirto_", kOwnFolder)) continue;
        Load(language, "qtbase_", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        CoreText::SetTranslator(TranslatedOfCore);
        return;
    }
}
