#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "app/file_panel.h"
#include "kit/message.h"
#include "kit/messenger.h"
#include "ui/file_panels/file_dialog.h"

namespace kirto {

// What the file panels have in common: a dialog that is made when first shown and then keeps its
// folder, and the messages that it sends to the application. Threads as for FilePanel.
class FileDialogPanel : public FilePanel {
  public:
    ~FileDialogPanel() override;

    void SetTitle(const std::string& title) override;
    void SetDirectory(const std::string& path) override;
    void SetSaveText(const std::string& text) override;
    void ProposeName(const std::string& name) override { SetSaveText(name); }
    void Show() override;

    // The dialog; null before it is first shown, and once its parent is gone. GUI thread.
    FileDialog* Dialog() const { return dialog_; }

  protected:
    // target: the application. parent: the window that can't be used while the dialog is shown.
    FileDialogPanel(std::string title, BMessenger target, QPointer<QWidget> parent);

    // Sets up a new dialog.
    virtual void Prepare(FileDialog& dialog) = 0;
    // The command for the files that were chosen, at least one, by their absolute paths.
    virtual BMessage CommandFor(const QStringList& files) const = 0;

    // Called when the dialog was closed, with or without files.
    virtual void Closed(bool) {}

    // What the name field starts with.
    const std::string& SaveText() const { return save_text_; }
    // Starts with another text from now on; in a dialog that is shown only where the user has left
    // the old one alone.
    void ChangeSaveText(const std::string& text);

    void SendToTarget(const BMessage& message) const { target_.SendMessage(message); }

  private:
    void MakeDialog();
    // The dialog has been closed, with files chosen or not.
    void Finish(bool chosen);

    std::string title_;
    BMessenger target_;
    QPointer<QWidget> parent_;
    std::string save_text_;
    QString directory_;  // where the dialog was left; empty before
    QPointer<FileDialog> dialog_;
};

}  // namespace kirto
