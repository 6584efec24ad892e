#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "kit/message.h"

class QDialogButtonBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace kirto {

// A small dialog of one form: what it works on, a few fields, and "OK", which can be chosen while
// the fields make a command. Opens beside its parent window and deletes itself when it is closed.
// GUI thread.
class FormDialog : public QDialog {
  public:
    // Makes the command of what the fields hold now; empty while they make none.
    using Maker = std::function<std::optional<BMessage>()>;
    // Receives it when the user chooses "OK".
    using Receiver = std::function<void(const BMessage& command)>;

    // name: the object's; scope: which frames it is about, as a sentence.
    FormDialog(const char* name, const QString& title, const QString& scope, QWidget* parent);

    // Adds a field with its label, which names it for those who can't see it.
    void AddField(const QString& label, QWidget* field);
    // Adds a field for a whole number from first to last.
    QSpinBox* AddNumber(const char* name, const QString& label, int first, int last, int value);
    // Adds a field, named "File", for a path, with a button that asks for one. choose: shows a file
    // dialog and returns the path; empty when it was canceled.
    QLineEdit* AddFile(const QString& label, std::function<QString()> choose);
    // Adds a field that says by itself what it is.
    void AddWide(QWidget* field);
    // Called once, when all fields are there.
    void Open(Maker make, Receiver receive);
    // Looks at the fields again.
    void Check();

  protected:
    // Keeps it high enough for its texts, which take more lines the narrower it is.
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Finish();

    QFormLayout* form_;
    QDialogButtonBox* buttons_;
    Maker make_;
    Receiver receive_;
};

}  // namespace kirto
