#pragma once

#include <QColor>
#include <QPushButton>
#include <functional>

namespace kirto {

// Shows a color and, as its text, that color's name; pressed, it opens a dialog that mixes another
// one or picks it from the screen. White at first. GUI thread.
class ColorButton : public QPushButton {
  public:
    explicit ColorButton(QWidget* parent);

    QColor Color() const { return color_; }
    void SetColor(const QColor& color);
    // Called when the user has chosen another color; the dialog has the button's accessible name as
    // its title.
    void WhenChosen(std::function<void()> chosen) { chosen_ = std::move(chosen); }

  private:
    void Choose();

    QColor color_;
    std::function<void()> chosen_;
};

}  // namespace kirto
