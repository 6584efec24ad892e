#include "ui/file_panels/save_file_panel.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>

#include "app/save_animation.h"
#include "base/core_text.h"
#include "document/command_codes.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/file_panels/translator_menu_item.h"
#include "ui/file_panels/translator_settings_window.h"

namespace {

constexpr int32 kReplace = 1;  // the alert's second button
constexpr const char* kReplaceFile =
    CoreText::Later("A file named \"%1\" already exists. Do you want to replace it?");
constexpr const char* kReplaceSequence = CoreText::Later(
    "A file named \"%1\" already exists. Do you want to replace the files of this sequence?");

BMessage SaveMessage(int32 translator) {
    BMessage message(kirto::kSaveFile);
    message.AddInt64("translator_id", translator);
    return message;
}

// question: with the name in it.
bool MayReplace(const QString& name, const char* question) {
    BAlert alert("", CoreText::With(CoreText::tr(question), {name.toStdString()}),
                 CoreText::Later("Cancel"), CoreText::Later("Replace"));
    return alert.Go() == kReplace;
}

}  // namespace

SaveFilePanel::SaveFilePanel(BMessenger target, const BTranslatorRoster& roster,
                             QPointer<QWidget> parent, std::function<void()> show_preferences)
    : FileDialogPanel(CoreText::tr("Save Animation"), std::move(target), std::move(parent)),
      BHandler("SaveFilePanel"),
      roster_(roster),
      show_preferences_(std::move(show_preferences)),
      message_(SaveMessage(0)) {}

SaveFilePanel::~SaveFilePanel() = default;

void SaveFilePanel::Prepare(kirto::FileDialog& dialog) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.SetReplaceCheck([this](const QString& path) { return MayWrite(path); });
    MakeControls(dialog);
    BuildMenu();
    MarkOutputFormat();
}

void SaveFilePanel::Show() {
    // The format may have been changed on another thread.
    if (Dialog() && !Dialog()->isVisible()) MarkOutputFormat();
    FileDialogPanel::Show();
}

void SaveFilePanel::UseOutputFormat(uint32 format) {
    saved_format_ = format;
    output_format_ = format;
}

void SaveFilePanel::Closed(bool chosen) {
    if (chosen) {
        output_format_ = static_cast<uint32>(GetOutputFormat());
        saved_format_ = output_format_.load();
    } else {
        output_format_ = saved_format_.load();
        MarkOutputFormat();
    }
}

void SaveFilePanel::MakeControls(kirto::FileDialog& dialog) {
    auto* controls = new QWidget(&dialog);
    auto* label = new QLabel(UiText::tr("Format:"), controls);
    format_ = new QComboBox(controls);
    format_->setObjectName("FormatMenuField");
    format_->view()->setObjectName("FormatPopUpMenu");
    format_->setAccessibleName(label->text());
    format_->setToolTip(UiText::tr("One animation, or one image file per frame"));
    label->setBuddy(format_);
    auto* settings = new QPushButton(UiText::tr("Settings..."), controls);
    settings->setObjectName("Settings");
    settings->setToolTip(UiText::tr("Options of the chosen format"));
    settings->setAutoDefault(false);
    QObject::connect(format_, &QComboBox::activated, [this] {
        BMessage chosen(MarkedItem()->Command());
        MessageReceived(&chosen);
    });
    QObject::connect(settings, &QPushButton::clicked, [this] {
        BMessage pressed(kirto::kSaveFormatSettings);
        MessageReceived(&pressed);
    });

    auto* layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(format_);
    layout->addWidget(settings);
    layout->addStretch();
    dialog.AddRow(controls);
}

void SaveFilePanel::BuildMenu() {
    auto* items = new QStandardItemModel(format_);
    items->appendRow(
        new TranslatorMenuItem(CoreText::tr("Animated GIF"), kirto::kSaveFormat, 0, 0));
    for (const translator_id translator : roster_.Translators())
        AddTranslator(translator, *items);
    format_->setModel(items);
    if (items->rowCount() > 1) format_->insertSeparator(1);
    format_->setCurrentIndex(0);
}

void SaveFilePanel::AddTranslator(translator_id translator, QStandardItemModel& items) {
    for (const translation_format& format : roster_.OutputFormats(translator)) {
        if (format.type == B_TRANSLATOR_BITMAP) continue;
        items.appendRow(new TranslatorMenuItem(
            CoreText::With(CoreText::tr("%1 sequence"), {format.name}), kirto::kSaveFormat,
            static_cast<int32>(translator), format.type));
    }
}

const TranslatorMenuItem* SaveFilePanel::MarkedItem() const {
    if (!format_) return nullptr;
    const auto* items = static_cast<const QStandardItemModel*>(format_->model());
    return dynamic_cast<const TranslatorMenuItem*>(items->item(format_->currentIndex()));
}

void SaveFilePanel::MarkOutputFormat() {
    // A translator may have several formats; the one that is marked stays so.
    if (static_cast<uint32>(GetOutputFormat()) != output_format_) {
        format_->setCurrentIndex(RowOf(output_format_));
    }
    UseMarkedFormat();
}

int SaveFilePanel::RowOf(uint32 format) const {
    const auto* items = static_cast<const QStandardItemModel*>(format_->model());
    for (int row = 0; row < items->rowCount(); ++row) {
        const auto* item = dynamic_cast<const TranslatorMenuItem*>(items->item(row));
        if (item && static_cast<uint32>(item->Translator()) == format) return row;
    }
    return 0;
}

void SaveFilePanel::UseMarkedFormat() {
    message_ = SaveMessage(GetOutputFormat());
    UseUsualExtension();
}

int32 SaveFilePanel::GetOutputFormat() const {
    const TranslatorMenuItem* item = MarkedItem();
    return item ? item->Translator() : 0;
}

void SaveFilePanel::UseUsualExtension() {
    std::string extension = "gif";
    const TranslatorMenuItem* item = MarkedItem();
    if (item && item->Translator() != 0) {
        extension.clear();
        const auto translator = static_cast<translator_id>(item->Translator());
        for (const translation_format& format : roster_.OutputFormats(translator)) {
            const bool has_one = format.type == item->OutputType() && !format.extensions.empty();
            if (has_one) extension = format.extensions.front();
        }
    }
    ProposeExtension(QString::fromStdString(extension));
    Dialog()->setDefaultSuffix(QString::fromStdString(extension));
}

// In place of that of an animation or of the format before; any other is part of the name.
void SaveFilePanel::ProposeExtension(const QString& extension) {
    const QFileInfo name(QString::fromStdString(SaveText()));
    const QString now = name.suffix().toLower();
    const QStringList replaced = {"gif", "fli", "flc", Dialog()->defaultSuffix()};
    if (extension.isEmpty() || now.isEmpty() || now == extension || !replaced.contains(now)) return;
    ChangeSaveText((name.completeBaseName() + "." + extension).toStdString());
}

void SaveFilePanel::MessageReceived(BMessage* message) {
    switch (message->what) {
        case kirto::kSaveFormat:
            output_format_ = static_cast<uint32>(GetOutputFormat());
            UseMarkedFormat();
            break;
        case kirto::kSaveFormatSettings:
            TranslatorSettings();
            break;
        default:
            BHandler::MessageReceived(message);
            break;
    }
}

BMessage SaveFilePanel::CommandFor(const QStringList& files) const {
    const QFileInfo file(files.front());
    BMessage command = message_;
    command.AddRef("directory", entry_ref(QFile::encodeName(file.absolutePath()).toStdString()));
    command.AddString("name", QFile::encodeName(file.fileName()).toStdString());
    return command;
}

bool SaveFilePanel::MayWrite(const QString& path) const {
    const QFileInfo file(path);
    if (GetOutputFormat() == 0) return !file.exists() || MayReplace(file.fileName(), kReplaceFile);
    const std::string name = kirto::SequenceFileName(file.fileName().toStdString(), 0);
    const QFileInfo first(file.dir(), QString::fromStdString(name));
    return !first.exists() || MayReplace(first.fileName(), kReplaceSequence);
}

void SaveFilePanel::TranslatorSettings() {
    const int32 translator = GetOutputFormat();
    if (translator == 0) {
        show_preferences_();
    } else {
        ShowSettings(translator);
    }
}

void SaveFilePanel::ShowSettings(int32 translator) {
    const auto changed = settings_.find(translator);
    const BMessage settings = changed != settings_.end()
                                  ? changed->second
                                  : roster_.DefaultSettings(static_cast<translator_id>(translator));
    if (settings.IsEmpty()) {
        std::string name;
        const bool known = roster_.GetTranslatorInfo(static_cast<translator_id>(translator), &name);
        kirto::Warn(kirto::StatusText(known ? B_ERROR : B_NO_TRANSLATOR));
        return;
    }
    delete settings_window_;
    settings_window_ = new kirto::TranslatorSettingsWindow(
        settings,
        [this, translator](const BMessage& now) {
            settings_[translator] = now;
            BMessage message(kirto::kTranslatorSettings);
            message.AddInt32("translator", translator);
            message.AddMessage("settings", now);
            SendToTarget(message);
        },
        Dialog());
    settings_window_->show();
}
