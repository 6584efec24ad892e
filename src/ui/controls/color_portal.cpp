#include "ui/controls/color_portal.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

namespace kirto {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kDesktopPath = "/org/freedesktop/portal/desktop";
constexpr const char* kScreenshot = "org.freedesktop.portal.Screenshot";
constexpr const char* kRequest = "org.freedesktop.portal.Request";

// Three levels from 0 to 1.
QColor ColorOf(const QVariant& value) {
    if (!value.canConvert<QDBusArgument>()) return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)")) return {};
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    const auto is_level = [](double level) { return level >= 0 && level <= 1; };
    if (!is_level(red) || !is_level(green) || !is_level(blue)) return {};
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                            static_cast<float>(blue));
}

}  // namespace

ColorPortal::ColorPortal(const QDBusConnection& bus, Picked picked, Missing missing,
                         QObject* parent)
    : QObject(parent), bus_(bus), picked_(std::move(picked)), missing_(std::move(missing)) {
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        Forget();
        picked_({});
    });
}

void ColorPortal::Pick() {
    if (!request_.isEmpty()) return;
    const QString token =
        QString("kirto%1_%2").arg(QCoreApplication::applicationPid()).arg(count_++);
    // Where the answer comes from follows from the two names, so that none can come too early.
    QString sender = bus_.baseService().mid(1);
    Listen(QString("%1/request/%2/%3").arg(kDesktopPath, sender.replace('.', '_'), token));
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kDesktopPath, kScreenshot, "PickColor");
    call << QString() << QVariantMap{{"handle_token", token}};
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError()) return;
        Forget();
        missing_();
    });
}

void ColorPortal::Listen(const QString& request) {
    request_ = request;
    watcher_.addWatchedService(kService);
    bus_.connect(kService, request_, kRequest, "Response", this,
                 SLOT(TakeResponse(uint, QVariantMap)));
}

void ColorPortal::Forget() {
    bus_.disconnect(kService, request_, kRequest, "Response", this,
                    SLOT(TakeResponse(uint, QVariantMap)));
    watcher_.removeWatchedService(kService);
    request_.clear();
}

void ColorPortal::TakeResponse(uint response, const QVariantMap& results) {
    Forget();
    picked_(response == 0 ? ColorOf(results.value("color")) : QColor());
}

}  // namespace kirto
