#include "ui/controls/screen_color_button.h"

#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <utility>

#include "kit/qt/ui_text.h"
#include "ui/controls/color_portal.h"

namespace kirto {

namespace {

QColor ColorOnScreen(const QPoint& place) {
    QScreen* screen = QGuiApplication::screenAt(place);
    if (!screen) return {};
    const QPoint on_it = place - screen->geometry().topLeft();
    const QImage image = screen->grabWindow(0, on_it.x(), on_it.y(), 1, 1).toImage();
    return image.isNull() ? QColor() : image.pixelColor(0, 0);
}

}  // namespace

ScreenColorButton::ScreenColorButton(QWidget* parent)
    : ScreenColorButton(parent, EyeOfDesktop(), BusOfDesktop()) {}

ScreenColorButton::ScreenColorButton(QWidget* parent, Eye eye,
                                     const std::optional<QDBusConnection>& bus)
    : QPushButton(UiText::tr("Pick from &Screen"), parent), eye_(std::move(eye)) {
    setObjectName("PickFromScreen");
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(UiText::tr("Takes the color that is clicked next, anywhere on the screen"));
    if (!eye_ && bus)
        portal_ = new ColorPortal(
            *bus, [this](const QColor& color) { TakeColor(color); }, [this] { Disable(); }, this);
    if (!eye_ && !portal_) Disable();
    connect(this, &QPushButton::clicked, this, [this] { StartPicking(); });
}

void ScreenColorButton::WhenPicked(std::function<void(const QColor& color)> picked) {
    picked_ = std::move(picked);
}

// Only an X server shows programs more than their own windows.
ScreenColorButton::Eye ScreenColorButton::EyeOfDesktop() {
    return QGuiApplication::platformName() == "xcb" ? Eye(ColorOnScreen) : nullptr;
}

std::optional<QDBusConnection> ScreenColorButton::BusOfDesktop() {
    if (!QGuiApplication::platformName().startsWith("wayland")) return std::nullopt;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

void ScreenColorButton::Disable() {
    setEnabled(false);
    setToolTip(UiText::tr("This desktop lets no program see the screen"));
}

void ScreenColorButton::TakeColor(const QColor& color) {
    if (color.isValid() && picked_) picked_(color);
}

void ScreenColorButton::StartPicking() {
    if (portal_) return portal_->Pick();
    if (picking_) return;
    picking_ = true;
    grabMouse(Qt::CrossCursor);
    grabKeyboard();
}

void ScreenColorButton::StopPicking() {
    picking_ = false;
    releaseMouse();
    releaseKeyboard();
}

void ScreenColorButton::mousePressEvent(QMouseEvent* event) {
    if (!picking_) QPushButton::mousePressEvent(event);
}

// The button is let go here as well, so that whatever is below the pointer sees no half of a click.
void ScreenColorButton::mouseReleaseEvent(QMouseEvent* event) {
    if (!picking_) return QPushButton::mouseReleaseEvent(event);
    StopPicking();
    const QColor color = eye_(event->globalPosition().toPoint());
    if (event->button() == Qt::LeftButton) TakeColor(color);
}

void ScreenColorButton::keyPressEvent(QKeyEvent* event) {
    if (!picking_) return QPushButton::keyPressEvent(event);
    StopPicking();
}

}  // namespace kirto
