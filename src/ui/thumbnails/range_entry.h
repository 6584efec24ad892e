#pragma once

#include <QLineEdit>

#include "kit/messenger.h"
#include "ui/controls/shown_document.h"

namespace kirto {

// A field in which the numbers of frames are typed in passing, "3-7" or "0-20/2": it appears with
// the first digit over the thumbnails, Return selects the frames, Escape forgets them. GUI thread.
class RangeEntry : public QLineEdit {
  public:
    // Hidden at first. thumbnails: what it lies over and gives the keyboard back to; shown outlives
    // the field.
    RangeEntry(const ShownDocument& shown, BMessenger application, QWidget* thumbnails);

    // Whether such text begins the numbers of frames, and there are any.
    bool Begins(const QString& text) const;
    // Shows the field with that text, and takes the keyboard.
    void Begin(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void Select();

    const ShownDocument& shown_;
    const BMessenger application_;
    QWidget* const thumbnails_;
};

}  // namespace kirto
