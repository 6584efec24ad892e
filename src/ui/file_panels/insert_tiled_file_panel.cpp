#include "ui/file_panels/insert_tiled_file_panel.h"

#include <QCheckBox>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpressionValidator>

#include "base/core_text.h"
#include "base/number.h"
#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/leading_key.h"
#include "ui/file_panels/image_filter.h"

namespace {

constexpr int kMaxDigits = 5;

QLabel* MakeLabelFor(QWidget* field, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setBuddy(field);
    field->setAccessibleName(label->text().remove('&'));
    return label;
}

QRadioButton* MakeOrder(const char* name, const QString& label, QWidget* parent) {
    auto* button = new QRadioButton(label, parent);
    button->setObjectName(QString::fromUtf8(name));
    return button;
}

}  // namespace

InsertTiledFilePanel::InsertTiledFilePanel(BMessenger target, BTranslatorRoster& roster,
                                           QPointer<QWidget> parent)
    : OpenFilePanel(
          {CoreText::tr("Insert Tiled Frame"), kirto::kInsertTiledFile, CoreText::tr("Insert"),
           false, [&roster] { return std::make_unique<ImageFilter>(roster); }},
          std::move(target), std::move(parent)),
      roster_(roster) {}

std::string InsertTiledFilePanel::RowsText() const {
    const std::lock_guard lock(mutex_);
    return rows_;
}

std::string InsertTiledFilePanel::ColumnsText() const {
    const std::lock_guard lock(mutex_);
    return columns_;
}

bool InsertTiledFilePanel::ColumnByColumn() const {
    const std::lock_guard lock(mutex_);
    return column_by_column_;
}

QLineEdit* InsertTiledFilePanel::MakeNumberField(const char* name, std::string* text,
                                                 QWidget* parent) {
    static const QRegularExpression kDigits("[0-9]*");
    auto* field = new QLineEdit(QString::fromStdString(*text), parent);
    field->setObjectName(QString::fromUtf8(name));
    field->setMaxLength(kMaxDigits);
    field->setValidator(new QRegularExpressionValidator(kDigits, field));
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(field->fontMetrics().horizontalAdvance("0") * (kMaxDigits + 3));
    QObject::connect(field, &QLineEdit::textChanged, [this, text](const QString& changed) {
        {
            const std::lock_guard lock(mutex_);
            *text = changed.toStdString();
        }
        Preview();
    });
    return field;
}

void InsertTiledFilePanel::Prepare(kirto::FileDialog& dialog) {
    OpenFilePanel::Prepare(dialog);
    auto* controls = new QWidget(&dialog);
    QLineEdit* rows = MakeNumberField("Rows", &rows_, controls);
    rows->setToolTip(UiText::tr("Number of rows of tiles in the image"));
    QLineEdit* columns = MakeNumberField("Columns", &columns_, controls);
    columns->setToolTip(UiText::tr("Number of columns of tiles in the image"));
    QRadioButton* by_row = MakeOrder("RowByRow", UiText::tr("Row by row"), controls);
    QRadioButton* by_column = MakeOrder("ColumnByColumn", UiText::tr("Column by column"), controls);
    (column_by_column_ ? by_column : by_row)->setChecked(true);
    QObject::connect(by_column, &QRadioButton::toggled, [this](bool on) {
        const std::lock_guard lock(mutex_);
        column_by_column_ = on;
    });

    auto* layout = new QGridLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(MakeLabelFor(rows, UiText::tr("Rows:"), controls), 0, 0);
    layout->addWidget(rows, 0, 1);
    layout->addWidget(by_row, 0, 2);
    layout->addWidget(MakeLabelFor(columns, UiText::tr("Columns:"), controls), 1, 0);
    layout->addWidget(columns, 1, 1);
    layout->addWidget(by_column, 1, 2);
    AddTileFields(*layout, controls);
    layout->setColumnStretch(3, 1);
    view_ = new kirto::SheetView(roster_, controls);
    layout->addWidget(view_, 5, 0, 1, 4);
    dialog.AddRow(controls);
    dialog.WatchChosenFile([this](const QString& path) {
        shown_path_ = QFile::encodeName(path).toStdString();
        Preview();
    });
}

kirto::TileGrid InsertTiledFilePanel::Grid() const {
    const std::lock_guard lock(mutex_);
    kirto::TileGrid grid;
    grid.rows = kirto::LeadingInteger(rows_);
    grid.columns = kirto::LeadingInteger(columns_);
    grid.column_by_column = column_by_column_;
    grid.margin = kirto::LeadingInteger(margin_);
    grid.spacing = kirto::LeadingInteger(spacing_);
    grid.tile_width = kirto::LeadingInteger(tile_width_);
    grid.tile_height = kirto::LeadingInteger(tile_height_);
    grid.skip_empty = skip_empty_;
    return grid;
}

void InsertTiledFilePanel::Preview() {
    if (view_) view_->ShowSheet(shown_path_, Grid());
}

void InsertTiledFilePanel::Closed(bool) {
    // The file may be another one when the panel is shown again.
    shown_path_.clear();
    Preview();
}

void InsertTiledFilePanel::KeepSquare(QLineEdit* width, QLineEdit* height) {
    const auto followed = std::make_shared<QString>(width->text());
    QObject::connect(width, &QLineEdit::textChanged, height, [=](const QString& text) {
        if (height->text() == *followed) height->setText(text);
        *followed = text;
    });
}

void InsertTiledFilePanel::AddTileFields(QGridLayout& layout, QWidget* controls) {
    const auto add = [&](const char* name, const QString& label, const QString& tip,
                         std::string* text, int row, int column) {
        QLineEdit* field = MakeNumberField(name, text, controls);
        field->setToolTip(tip);
        QLabel* name_label = MakeLabelFor(field, label, controls);
        if (column == 0) {
            layout.addWidget(name_label, row, 0);
            layout.addWidget(field, row, 1);
            return field;
        }
        auto* pair = new QHBoxLayout;
        pair->addWidget(name_label);
        pair->addWidget(field);
        pair->addStretch();
        layout.addLayout(pair, row, column);
        return field;
    };
    const QString tile_tip = UiText::tr(
        "Size of a tile in pixels, in place of rows and columns; 0: by rows and columns. Width, "
        "height and spacing may be typed at once: 64x48+2, or 64+2 for squares");
    QLineEdit* width = add("TileWidth", UiText::tr("Tile &width:"), tile_tip, &tile_width_, 2, 0);
    QLineEdit* height =
        add("TileHeight", UiText::tr("Tile &height:"), tile_tip, &tile_height_, 3, 0);
    add("Margin", UiText::tr("&Margin:"), UiText::tr("Pixels around all tiles"), &margin_, 2, 2);
    QLineEdit* spacing = add("Spacing", UiText::tr("&Spacing:"),
                             UiText::tr("Pixels between two tiles"), &spacing_, 3, 2);
    KeepSquare(width, height);
    new kirto::LeadingKey(width, 'x', height);
    for (QLineEdit* field : {width, height})
        new kirto::LeadingKey(field, '+', spacing);
    auto* skip = new QCheckBox(UiText::tr("Skip &empty tiles"), controls);
    skip->setObjectName("SkipEmpty");
    skip->setToolTip(UiText::tr("Makes no frames of tiles that are transparent everywhere"));
    skip->setChecked(skip_empty_);
    QObject::connect(skip, &QCheckBox::toggled, [this](bool on) {
        {
            const std::lock_guard lock(mutex_);
            skip_empty_ = on;
        }
        Preview();
    });
    layout.addWidget(skip, 4, 0, 1, 3);
}

BMessage InsertTiledFilePanel::CommandFor(const QStringList& files) const {
    BMessage command = OpenFilePanel::CommandFor(files);
    const std::lock_guard lock(mutex_);
    const auto add = [&command](const char* name, const std::string& text) {
        const int32 number = kirto::LeadingInteger(text);
        if (number > 0) command.AddInt32(name, number);
    };
    add("tile_width", tile_width_);
    add("tile_height", tile_height_);
    add("margin", margin_);
    add("spacing", spacing_);
    if (skip_empty_) command.AddBool("skip_empty", true);
    return command;
}
