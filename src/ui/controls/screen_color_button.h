#pragma once

#include <QColor>
#include <QDBusConnection>
#include <QPoint>
#include <QPushButton>
#include <functional>
#include <optional>

namespace kirto {

class ColorPortal;

// "Pick from Screen": after it is pressed the next click anywhere on the screen picks the color
// that is shown there; any key gives it up. Desktops that let no program see what others show are
// asked to do that themselves; where they can't, it is disabled and says why. GUI thread.
class ScreenColorButton : public QPushButton {
  public:
    // Returns the color on the screen at a place in the desktop's coordinates.
    using Eye = std::function<QColor(const QPoint& place)>;

    explicit ScreenColorButton(QWidget* parent);
    // eye: null where nothing can be seen; bus: none where the desktop can't be asked either.
    ScreenColorButton(QWidget* parent, Eye eye, const std::optional<QDBusConnection>& bus);

    // Called with each color that was picked.
    void WhenPicked(std::function<void(const QColor& color)> picked);
    // What the program may see of the screen here; null for nothing.
    static Eye EyeOfDesktop();
    // Where to ask the desktop; none on those that show programs the screen, or nothing at all.
    static std::optional<QDBusConnection> BusOfDesktop();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void StartPicking();
    void StopPicking();
    void TakeColor(const QColor& color);
    void Disable();

    Eye eye_;
    ColorPortal* portal_ = nullptr;  // a child
    std::function<void(const QColor& color)> picked_;
    bool picking_ = false;
};

}  // namespace kirto
