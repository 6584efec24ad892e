#include "ui/controls/panel_layout.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "resources/qt/text_control.h"

namespace kirto {

namespace {

constexpr int kRowSpacing = 4;  // pixels
// Numbers are short mostly, and a field is as wide as they are at any font size; it holds the
// largest real number with its sign and two decimals, though.
constexpr int kShownCharacters = 6;
constexpr int kRoomyCharacters = 10;
constexpr int kMostCharacters = 313;

void SizeField(TextControl& field) {
    field.setMaxLength(kMostCharacters);
    field.setAlignment(Qt::AlignRight);
    const int digit = field.fontMetrics().horizontalAdvance("0");
    field.setMinimumWidth(digit * (kShownCharacters + 1));
    field.setMaximumWidth(digit * (kRoomyCharacters + 1));
}

}  // namespace

PanelLayout::PanelLayout(QWidget* panel) : QGridLayout(panel) {
    setColumnStretch(1, 1);
    setVerticalSpacing(kRowSpacing);
    setHorizontalSpacing(2 * kRowSpacing);
}

void PanelLayout::AddField(const QString& label_text, QWidget* field, QLabel* unit) {
    auto* label = new QLabel(label_text, parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(label_text);
    AddRow(label, field, unit);
}

void PanelLayout::AddField(QAbstractButton* box, QWidget* field, QLabel* unit) {
    AddRow(box, field, unit);
}

// A menu takes all the room there is, a number what numbers need.
void PanelLayout::AddRow(QWidget* left, QWidget* field, QLabel* unit) {
    const int row = rowCount();
    addWidget(left, row, 0);
    auto* number = dynamic_cast<TextControl*>(field);
    if (!number) {
        addWidget(field, row, 1);
        return;
    }
    SizeField(*number);
    auto* measure = new QHBoxLayout;
    measure->setSpacing(kRowSpacing);
    measure->addWidget(number, 1);
    if (unit) measure->addWidget(unit);
    measure->addStretch();
    addLayout(measure, row, 1);
}

void PanelLayout::AddBelow(QWidget* widget) {
    addWidget(widget, rowCount(), 1);
}

int PanelLayout::LabelWidth() const {
    int widest = 0;
    for (int i = 0; i < count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        getItemPosition(i, &row, &column, &rows, &columns);
        if (column == 0 && columns == 1) widest = std::max(widest, itemAt(i)->sizeHint().width());
    }
    return widest;
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
