#pragma once

#include <QLineEdit>

#include "kit/message.h"
#include "kit/messenger.h"

namespace kirto {

// A field for one line of text that sends its command when the user is done with an edit: with the
// Enter key or by leaving the field, and only when the text was changed. GUI thread.
class TextControl : public QLineEdit {
  public:
    // name: the view's name, by which the window finds the field and speaks of it to the user.
    TextControl(const char* name, const BMessage& message, BMessenger target,
                QWidget* parent = nullptr);

    // The command is sent if there is an edit that was not sent yet.
    void Commit();
    // True while the user has changed the text and not committed it.
    bool IsBeingEdited() const { return isModified(); }
    // Shows the text, if it differs, without sending anything. Any edit in progress is over.
    void SetText(const QString& text);
    // The same, but leaves alone a field that the user is editing.
    void ShowText(const QString& text);

  protected:
    // The window's shortcuts are its menu's, whatever they would do to the text; Ctrl+A selects the
    // text, though, and the keys of the clipboard are the text's.
    bool event(QEvent* event) override;

  private:
    BMessage message_;
    BMessenger target_;
};

}  // namespace kirto
