#include "ui/dialogs/sheet_dialog.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <algorithm>

#include "document/command_codes.h"

namespace kirto {

namespace {

constexpr int kMostPadding = 1000;  // pixels

// The translator that writes PNG files; 0 without one.
translator_id PngWriter(const BTranslatorRoster& roster) {
    for (const translator_id id : roster.Translators()) {
        for (const translation_format& format : roster.OutputFormats(id)) {
            if (format.mime == "image/png") return id;
        }
    }
    return 0;
}

// A field for a path, with a button that shows a file dialog.
QLineEdit* AddPath(FormDialog& dialog) {
    auto* row = new QWidget(&dialog);
    auto* path = new QLineEdit(row);
    path->setObjectName("File");
    auto* choose = new QPushButton("C&hoose...", row);
    choose->setAutoDefault(false);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path, 1);
    layout->addWidget(choose);
    dialog.AddField("&Image:", row);
    path->setAccessibleName("Image");
    QObject::connect(path, &QLineEdit::textChanged, &dialog, &FormDialog::Check);
    QObject::connect(choose, &QPushButton::clicked, &dialog, [&dialog, path] {
        const QString chosen =
            QFileDialog::getSaveFileName(&dialog, "Export Sheet", path->text(), "PNG (*.png)");
        if (!chosen.isEmpty()) path->setText(chosen);
    });
    return path;
}

}  // namespace

void AskForSheet(const Animation& shown, const BTranslatorRoster& roster, QWidget* parent,
                 FormDialog::Receiver receive) {
    const int32 several = shown.several.Count();
    const int32 count = several > 0 ? several : shown.frames.Size();
    auto* dialog = new FormDialog("ExportSheet", "Export Sheet",
                                  QString("Writes the %1 %2frames side by side into one PNG image, "
                                          "and a JSON text beside it that says where each is.")
                                      .arg(count)
                                      .arg(several > 0 ? "selected " : ""),
                                  parent);
    QLineEdit* path = AddPath(*dialog);
    const auto number = [dialog](const char* name, const char* label, int last) {
        auto* field = new QSpinBox(dialog);
        field->setObjectName(name);
        field->setRange(0, last);
        dialog->AddField(label, field);
        return field;
    };
    QSpinBox* columns = number("Columns", "&Columns:", count);
    columns->setSpecialValueText("as many as rows");
    QSpinBox* padding = number("Padding", "&Padding in pixels:", kMostPadding);
    auto* power = new QCheckBox("Sides are powers of &two", dialog);
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
