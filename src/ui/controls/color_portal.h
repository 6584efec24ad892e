#pragma once

#include <QColor>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>
#include <functional>

namespace kirto {

// The desktop's own way to pick a color from the screen, where programs see nothing of each other:
// PickColor of org.freedesktop.portal.Screenshot. It never waits for the desktop. GUI thread.
class ColorPortal : public QObject {
    Q_OBJECT

  public:
    // Receives the color; an invalid one when the user gave it up, or the portal ended meanwhile.
    using Picked = std::function<void(const QColor& color)>;
    // Told once it is known that the desktop offers no such thing.
    using Missing = std::function<void()>;

    // bus: of the session, connected. parent: the owner.
    ColorPortal(const QDBusConnection& bus, Picked picked, Missing missing, QObject* parent);

    // Lets the user pick; nothing while one is being picked.
    void Pick();

  private slots:
    void TakeResponse(uint response, const QVariantMap& results);

  private:
    void Listen(const QString& request);
    void Forget();

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;  // of the portal, while it has something to answer
    const Picked picked_;
    const Missing missing_;
    QString request_;  // the path of the one that has no answer yet
    int count_ = 0;    // of requests
};

}  // namespace kirto
