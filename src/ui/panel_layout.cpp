#include "ui/panel_layout.h"

#include <QAbstractButton>
#include <QLabel>

namespace kirto {

namespace {

constexpr int kFieldCharacters = 9;

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
    setVerticalSpacing(4);
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

void PanelLayout::AddField(QAbstractButton* box, TextControl* field) {
    SizeField(field);
    const int row = rowCount();
    addWidget(box, row, 0);
    addWidget(field, row, 1);
}

void PanelLayout::AddWide(QWidget* widget) {
    addWidget(widget, rowCount(), 0, 1, 2);
}

}  // namespace kirto
