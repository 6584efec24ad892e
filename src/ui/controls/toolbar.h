#pragma once

#include <QWidget>

// A plain background in the desktop's panel color, with a bevel of one pixel around it, that a
// window puts its controls on. It fills the window that it is made for, and the window fits what is
// laid out on it. GUI thread; owned by the window.
class Toolbar : public QWidget {
  public:
    Toolbar(const char* name, QWidget* window);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
