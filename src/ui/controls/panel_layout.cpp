#include "ui/controls/panel_layout.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>

#include "resources/qt/text_control.h"

namespace kirto {

namespace {

constexpr int kRowSpacing = 4;  // pixels
// Numbers are short mostly, and a field is as wide as they are at any font size; it holds the
// largest real number with its sign and two decimals, though.
constexpr int kShownCharacters = 6;
constexpr int kMostCharacters = 313;

void SizeField(TextControl& field) {
    field.setMaxLength(kMostCharacters);
    field.setAlignment(Qt::AlignRight);
    field.setMinimumWidth(field.fontMetrics().horizontalAdvance("0") * (kShownCharacters + 1));
}

}  // namespace

PanelLayout::PanelLayout(QWidget* panel) : QGridLayout(panel) {
    setColumnStretch(0, 1);
    setVerticalSpacing(kRowSpacing);
}

void PanelLayout::AddField(const QString& label_text, QWidget* field) {
    auto* label = new QLabel(label_text, parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(label_text);
    AddRow(label, field);
}

void PanelLayout::AddField(QAbstractButton* box, QWidget* field) {
    AddRow(box, field);
}

// Numbers stand below each other. A menu takes what its texts need, and must not make the numbers'
// column as wide.
void PanelLayout::AddRow(QWidget* left, QWidget* field) {
    const int row = rowCount();
    if (auto* number = dynamic_cast<TextControl*>(field)) {
        SizeField(*number);
        addWidget(left, row, 0);
        addWidget(field, row, 1);
        return;
    }
    auto* pair = new QHBoxLayout;
    pair->setSpacing(2 * kRowSpacing);
    pair->addWidget(left);
    pair->addWidget(field, 1);
    addLayout(pair, row, 0, 1, 2);
}

void PanelLayout::AddWide(QWidget* widget) {
    addWidget(widget, rowCount(), 0, 1, 2);
}

void PanelLayout::AddPair(QWidget* left, QWidget* right) {
    auto* pair = new QHBoxLayout;
    pair->setSpacing(4 * kRowSpacing);
    pair->addWidget(left);
    pair->addWidget(right);
    pair->addStretch();
    addLayout(pair, rowCount(), 0, 1, 2);
}

void PanelLayout::AddGap() {
    setRowMinimumHeight(rowCount(), 2 * kRowSpacing);
}

}  // namespace kirto
