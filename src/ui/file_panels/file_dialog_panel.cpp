#include "ui/file_panels/file_dialog_panel.h"

#include <QDir>
#include <QFile>

namespace kirto {

FileDialogPanel::FileDialogPanel(std::string title, BMessenger target, QPointer<QWidget> parent)
    : title_(std::move(title)), target_(std::move(target)), parent_(std::move(parent)) {}

FileDialogPanel::~FileDialogPanel() {
    delete dialog_;
}

void FileDialogPanel::SetTitle(const std::string& title) {
    title_ = title;
    if (dialog_) dialog_->setWindowTitle(QString::fromStdString(title_));
}

void FileDialogPanel::SetDirectory(const std::string& path) {
    const QString directory = QFile::decodeName(path.c_str());
    if (!QDir(directory).exists()) return;
    directory_ = directory;
    if (dialog_) dialog_->setDirectory(directory_);
}

void FileDialogPanel::SetSaveText(const std::string& text) {
    save_text_ = text;
    if (dialog_) dialog_->Restart(QString::fromStdString(text));
}

void FileDialogPanel::ChangeSaveText(const std::string& text) {
    if (dialog_) dialog_->Rename(QString::fromStdString(save_text_), QString::fromStdString(text));
    save_text_ = text;
}

void FileDialogPanel::Show() {
    if (!dialog_) MakeDialog();
    if (!dialog_->isVisible()) dialog_->Restart(QString::fromStdString(save_text_));
    dialog_->show();
    dialog_->raise();
    dialog_->activateWindow();
}

void FileDialogPanel::MakeDialog() {
    dialog_ = new FileDialog(parent_);
    dialog_->setWindowTitle(QString::fromStdString(title_));
    if (!directory_.isEmpty()) dialog_->setDirectory(directory_);
    Prepare(*dialog_);
    QObject::connect(dialog_, &QDialog::finished,
                     [this](int result) { Finish(result == QDialog::Accepted); });
}

void FileDialogPanel::Finish(bool chosen) {
    directory_ = dialog_->directory().absolutePath();
    if (chosen) target_.SendMessage(CommandFor(dialog_->ChosenFiles()));
    Closed(chosen);
    // Also after a choice: the application tells the two by the order.
    const FilePanel* self = this;
    BMessage closed(B_CANCEL);
    closed.AddPointer("source", self);
    target_.SendMessage(closed);
}

}  // namespace kirto
