#pragma once

#include <QKeySequence>
#include <QLineEdit>
#include <functional>

namespace kirto {

// A field that shows the last key that was hit in it, with Ctrl and the like. Backspace and Delete
// alone mean no key; Tab, Return and Escape alone do what they do elsewhere. GUI thread.
class KeyField : public QLineEdit {
  public:
    explicit KeyField(QWidget* parent);

    // Called with each key that is hit; empty for none.
    void WhenHit(std::function<void(const QKeySequence& key)> hit);
    void ShowKey(const QKeySequence& key);

  protected:
    // Keys come here even where they mean something in the menus.
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::function<void(const QKeySequence& key)> hit_;
};

}  // namespace kirto
