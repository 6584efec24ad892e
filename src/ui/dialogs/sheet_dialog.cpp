#include "ui/dialogs/sheet_dialog.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSpinBox>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kMostSheetPadding = 1000;  // pixels

// The translator that writes PNG files; 0 without one.
translator_id PngWriter(const BTranslatorRoster& roster) {
    for (const translator_id id : roster.Translators()) {
        for (const translation_format& format : roster.OutputFormats(id)) {
            if (format.mime == "image/png") return id;
        }
    }
    return 0;
}

}  // namespace

void AskForSheet(const Animation& shown, const BTranslatorRoster& roster, QWidget* parent,
                 FormDialog::Receiver receive) {
    const int32 several = shown.several.Count();
    const int32 count = several > 0 ? several : shown.frames.Size();
    const QString scope =
        several > 0 ? UiText::tr(
                          "Writes the %1 selected frames side by side into one PNG image, and a "
                          "JSON text beside it that says where each is.")
                    : UiText::tr(
                          "Writes the %1 frames side by side into one PNG image, and a JSON text "
                          "beside it that says where each is.");
    auto* dialog =
        new FormDialog("ExportSheet", UiText::tr("Export Sheet"), scope.arg(count), parent);
    QLineEdit* path = dialog->AddFile(UiText::tr("&Image:"), [dialog] {
        return QFileDialog::getSaveFileName(dialog, UiText::tr("Export Sheet"), {}, "PNG (*.png)");
    });
    QSpinBox* columns = dialog->AddNumber("Columns", UiText::tr("&Columns:"), 0, count, 0);
    columns->setSpecialValueText(UiText::tr("as many as rows"));
    QSpinBox* padding =
        dialog->AddNumber("Padding", UiText::tr("&Padding in pixels:"), 0, kMostSheetPadding, 0);
    auto* power = new QCheckBox(UiText::tr("Sides are powers of &two"), dialog);
    power->setObjectName("PowerOfTwo");
    dialog->AddWide(power);
    path->setFocus();
    const auto make = [=, png = PngWriter(roster)]() -> std::optional<BMessage> {
        const entry_ref file(QFile::encodeName(path->text()).toStdString());
        if (png == 0 || !path->text().startsWith('/') || file.Leaf().empty()) return std::nullopt;
        BMessage message(kSaveSheet);
        message.AddInt64("translator_id", static_cast<int64>(png));
        message.AddRef("directory", entry_ref(file.Directory()));
        message.AddString("name", file.Leaf());
        message.AddInt32("columns", columns->value());
        message.AddInt32("padding", padding->value());
        message.AddBool("power_of_two", power->isChecked());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

}  // namespace kirto
