#pragma once

#include <QColor>
#include <QPoint>
#include <QPushButton>
#include <functional>

namespace kirto {

// "Pick from Screen": after it is pressed the next click anywhere on the screen picks the color
// that is shown there; any key gives it up. Disabled, and says why, on desktops that let no program
// see what others show. GUI thread.
class ScreenColorButton : public QPushButton {
  public:
    // Returns the color on the screen at a place in the desktop's coordinates.
    using Eye = std::function<QColor(const QPoint& place)>;

    // eye: null where nothing can be seen.
    explicit ScreenColorButton(QWidget* parent, Eye eye = EyeOfDesktop());

    // Called with each color that was picked.
    void WhenPicked(std::function<void(const QColor& color)> picked);
    // What the program may see of the screen here; null for nothing.
    static Eye EyeOfDesktop();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void StartPicking();
    void StopPicking();

    Eye eye_;
    std::function<void(const QColor& color)> picked_;
    bool picking_ = false;
};

}  // namespace kirto
