#include "ui/dialogs/form_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "kit/qt/ui_text.h"

namespace kirto {

FormDialog::FormDialog(const char* name, const QString& title, const QString& scope,
                       QWidget* parent)
    : QDialog(parent),
      form_(new QFormLayout),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setObjectName(name);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* about = new QLabel(scope, this);
    about->setObjectName("Scope");
    about->setWordWrap(true);
    about->setMinimumWidth(fontMetrics().horizontalAdvance("0") * 36);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(about);
    layout->addLayout(form_);
    layout->addStretch();
    layout->addWidget(buttons_);
    connect(buttons_, &QDialogButtonBox::accepted, this, [this] { Finish(); });
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void FormDialog::AddField(const QString& label, QWidget* field) {
    form_->addRow(label, field);
    field->setAccessibleName(QString(label).remove(':').remove('&'));
}

QSpinBox* FormDialog::AddNumber(const char* name, const QString& label, int first, int last,
                                int value) {
    auto* number = new QSpinBox(this);
    number->setObjectName(name);
    number->setRange(first, last);
    number->setValue(value);
    AddField(label, number);
    return number;
}

QLineEdit* FormDialog::AddFile(const QString& label, std::function<QString()> choose) {
    auto* row = new QWidget(this);
    auto* path = new QLineEdit(row);
    path->setObjectName("File");
    auto* button = new QPushButton(UiText::tr("C&hoose..."), row);
    button->setAutoDefault(false);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path, 1);
    layout->addWidget(button);
    AddField(label, row);
    path->setAccessibleName(row->accessibleName());
    connect(path, &QLineEdit::textChanged, this, &FormDialog::Check);
    connect(button, &QPushButton::clicked, this, [path, choose = std::move(choose)] {
        const QString chosen = choose();
        if (!chosen.isEmpty()) path->setText(chosen);
    });
    return path;
}

void FormDialog::AddWide(QWidget* field) {
    form_->addRow(field);
}

void FormDialog::Open(Maker make, Receiver receive) {
    make_ = std::move(make);
    receive_ = std::move(receive);
    Check();
    show();
}

void FormDialog::Check() {
    if (make_) buttons_->button(QDialogButtonBox::Ok)->setEnabled(make_().has_value());
}

void FormDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const int least = layout()->totalMinimumHeightForWidth(width());
    if (least > 0 && least != minimumHeight()) setMinimumHeight(least);
}

void FormDialog::Finish() {
    const std::optional<BMessage> command = make_();
    if (!command) return;
    receive_(*command);
    accept();
}

}  // namespace kirto
