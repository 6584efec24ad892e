#include "ui/export/export_presets.h"

#include <QSettings>
#include <filesystem>

#include "base/number.h"
#include "kit/qt/ui_text.h"
#include "settings/prefs.h"

namespace kirto {

namespace {

constexpr const char* kPresetGroup = "presets";
constexpr const char* kLastGroup = "last";
constexpr const char* kLastFormat = "format";
constexpr const char* kFitName = "fit=";
constexpr ExportFormat kFormats[] = {ExportFormat::kGif, ExportFormat::kWebp, ExportFormat::kApng,
                                     ExportFormat::kMp4, ExportFormat::kWebm};

struct Preset {
    const char* name;
    const char* text;
};
constexpr Preset kPresets[] = {
    {UiText::Later("Chat 8 MB"), "GIF colors=256 fit=8000"},
    {UiText::Later("E-mail 1 MB"), "GIF colors=128 fit=1000"},
    {UiText::Later("Documentation"), "WebP quality=lossless"},
};

std::optional<ExportFormat> FormatNamed(const QString& name) {
    for (const ExportFormat format : kFormats) {
        if (name == NameOf(format)) return format;
    }
    return std::nullopt;
}

// One of the words of a text. False where it is none.
bool Read(const std::string& word, ExportWish* wish) {
    if (!word.starts_with(kFitName)) return ReadExportChoice(word, &wish->settings).empty();
    int32 kilobytes = 0;
    if (!ParseNumber(std::string_view(word).substr(std::string_view(kFitName).size()), &kilobytes))
        return false;
    if (kilobytes < 1) return false;
    wish->kilobytes = kilobytes;
    return true;
}

}  // namespace

ExportPresets::ExportPresets(QString path) : path_(std::move(path)) {}

QString ExportPresets::UsualPath() {
    const std::filesystem::path settings(Prefs::SettingsPath());
    return QString::fromLocal8Bit((settings.parent_path() / "Kirto_exports.ini").c_str());
}

QStringList ExportPresets::Names() const {
    QStringList names;
    for (const Preset& preset : kPresets)
        names << UiText::tr(preset.name);
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kPresetGroup);
    for (const QString& name : file.childKeys()) {
        if (!names.contains(name)) names << name;
    }
    return names;
}

std::optional<ExportWish> ExportPresets::Find(const QString& name) const {
    for (const Preset& preset : kPresets) {
        if (name == UiText::tr(preset.name)) return Parse(preset.text);
    }
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kPresetGroup);
    return Parse(file.value(name).toString());
}

bool ExportPresets::IsOwn(const QString& name) const {
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kPresetGroup);
    return file.childKeys().contains(name);
}

bool ExportPresets::Store(const QString& name, const ExportWish& wish) {
    const bool usable = !name.isEmpty() && !name.contains('/') && !name.contains('\\');
    if (!usable || (Names().contains(name) && !IsOwn(name))) return false;
    QSettings file(path_, QSettings::IniFormat);
    file.setValue(QString(kPresetGroup) + '/' + name, TextOf(wish));
    file.sync();
    return file.status() == QSettings::NoError;
}

bool ExportPresets::Remove(const QString& name) {
    if (!IsOwn(name)) return false;
    QSettings file(path_, QSettings::IniFormat);
    file.remove(QString(kPresetGroup) + '/' + name);
    file.sync();
    return file.status() == QSettings::NoError;
}

ExportWish ExportPresets::Last(ExportFormat format) const {
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kLastGroup);
    const auto last = Parse(file.value(NameOf(format)).toString());
    if (last && last->settings.format == format) return *last;
    ExportWish wish;
    wish.settings.format = format;
    return wish;
}

ExportWish ExportPresets::Last() const {
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kLastGroup);
    return Last(FormatNamed(file.value(kLastFormat).toString()).value_or(ExportFormat::kGif));
}

void ExportPresets::StoreLast(const ExportWish& wish) {
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kLastGroup);
    file.setValue(kLastFormat, NameOf(wish.settings.format));
    file.setValue(NameOf(wish.settings.format), TextOf(wish));
}

QString ExportPresets::TextOf(const ExportWish& wish) {
    QString text = QString("%1 %2").arg(NameOf(wish.settings.format),
                                        QString::fromStdString(kirto::TextOf(wish.settings)));
    if (wish.kilobytes) text += QString(" %1%2").arg(kFitName).arg(*wish.kilobytes);
    return text;
}

std::optional<ExportWish> ExportPresets::Parse(const QString& text) {
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    const auto format = words.isEmpty() ? std::nullopt : FormatNamed(words.front());
    if (!format) return std::nullopt;
    ExportWish wish;
    wish.settings.format = *format;
    for (const QString& word : words.mid(1)) {
        if (!Read(word.toStdString(), &wish)) return std::nullopt;
    }
    return wish;
}

}  // namespace kirto
