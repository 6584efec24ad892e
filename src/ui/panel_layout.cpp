#include "ui/panel_layout.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>

#include "framework/qt/text_control.h"

namespace kirto {

namespace {

constexpr int kFieldCharacters = 9;
constexpr int kRowSpacing = 4;  // pixels

// Numbers are short: a field is as wide as what it may hold, at any font size.
void SizeField(QWidget* widget) {
    auto* field = dynamic_cast<TextControl*>(widget);
    if (!field) return;
    field->setMaxLength(kFieldCharacters);
    field->setAlignment(Qt::AlignRight);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance("0") * (kFieldCharacters + 1));
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
    SizeField(field);
    const int row = rowCount();
    addWidget(label, row, 0);
    addWidget(field, row, 1);
}

void PanelLayout::AddField(QAbstractButton* box, QWidget* field) {
    SizeField(field);
    const int row = rowCount();
    addWidget(box, row, 0);
    addWidget(field, row, 1);
}

void PanelLayout::AddWide(QWidget* widget) {
    addWidget(widget, rowCount(), 0, 1, 2);
}

void PanelLayout::AddPair(QWidget* left, QWidget* right) {
    auto* pair = new QHBoxLayout;
    pair->addWidget(left);
    pair->addWidget(right);
    pair->addStretch();
    addLayout(pair, rowCount(), 0, 1, 2);
}

void PanelLayout::AddGap() {
    setRowMinimumHeight(rowCount(), 2 * kRowSpacing);
}

}  // namespace kirto
