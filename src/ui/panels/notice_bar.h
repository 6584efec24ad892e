#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <vector>

#include "kit/message.h"
#include "kit/messenger.h"

// A line that says something without asking for an answer, with buttons for what may follow from
// it. It is hidden until there is something to say, and takes the keyboard from nobody. GUI thread.
class NoticeBar : public QWidget {
  public:
    // The window receives the buttons' commands.
    explicit NoticeBar(BMessenger window, QWidget* parent = nullptr);

    // Shows what a kShowNotice says, in place of what was shown.
    void ShowNotice(const BMessage& message);
    void HideNotice();

    QLabel* text;
    std::vector<QPushButton*> buttons;  // from the left

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void AddButton(const std::string& label, uint32 command);

    const BMessenger window_;
    QHBoxLayout* layout_;
};
