#include "ui/controls/color_portal.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

#include "ui/controls/screen_color_button.h"

namespace kirto::test {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPortal = "/org/freedesktop/portal/desktop";

// A bus of its own, which ends with it.
class PrivateBus {
  public:
    PrivateBus() {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        if (daemon_.waitForStarted() && daemon_.waitForReadyRead())
            address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    QDBusConnection Connect(const QString& name) const {
        return QDBusConnection::connectToBus(address_, name);
    }

  private:
    QProcess daemon_;
    QString address_;
};

// What desktops have: it answers when it is told to, with what it is told.
class Portal : public QDBusVirtualObject {
  public:
    explicit Portal(const QDBusConnection& bus) : bus_(bus) {
        EXPECT_TRUE(bus_.registerVirtualObject(kPortal, this, QDBusConnection::SubPath));
        Begin();
    }
    void Begin() { EXPECT_TRUE(bus_.registerService(kService)); }
    void End() { EXPECT_TRUE(bus_.unregisterService(kService)); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != "PickColor") return false;
        const auto options = qdbus_cast<QVariantMap>(message.arguments().at(1));
        request = QString("%1/request/%2/%3")
                      .arg(kPortal, message.service().mid(1).replace('.', '_'),
                           options.value("handle_token").toString());
        ++calls;
        return bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    }

    void Answer(uint response, const QVariantMap& results) {
        QDBusMessage signal =
            QDBusMessage::createSignal(request, "org.freedesktop.portal.Request", "Response");
        signal << response << results;
        EXPECT_TRUE(bus_.send(signal));
    }

    QString request;
    int calls = 0;

  private:
    QDBusConnection bus_;
};

QVariantMap ColorResults(double red, double green, double blue) {
    QDBusArgument argument;
    argument.beginStructure();
    argument << red << green << blue;
    argument.endStructure();
    return {{"color", QVariant::fromValue(argument)}};
}

class ColorPortalTest : public ::testing::Test {
  protected:
    ColorPortalTest() {
        window.resize(200, 100);
        button.WhenPicked([this](const QColor& color) { picked.push_back(color); });
    }
    ~ColorPortalTest() override {
        QDBusConnection::disconnectFromBus("ours");
        QDBusConnection::disconnectFromBus("desktop");
    }

    void Ask(Portal& portal, int calls) {
        button.click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return portal.calls == calls; }));
        QTest::qWait(20);  // for the reply
    }

    PrivateBus bus;
    QWidget window;
    ScreenColorButton button{&window, nullptr, bus.Connect("ours")};
    std::vector<QColor> picked;
};

TEST_F(ColorPortalTest, LetsTheDesktopPickTheColor) {
    Portal portal(bus.Connect("desktop"));
    Ask(portal, 1);
    EXPECT_TRUE(picked.empty());
    portal.Answer(0, ColorResults(1, 0.2, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picked.empty(); }));
    EXPECT_EQ(picked, std::vector<QColor>{QColor(255, 51, 0)});

    Ask(portal, 2);
    portal.Answer(0, ColorResults(0, 0, 1));
    EXPECT_TRUE(QTest::qWaitFor([&] { return picked.size() == 2; }));
    EXPECT_TRUE(button.isEnabled());
}

TEST_F(ColorPortalTest, AsksOnceWhileTheUserPicks) {
    Portal portal(bus.Connect("desktop"));
    Ask(portal, 1);
    button.click();
    QTest::qWait(50);
    EXPECT_EQ(portal.calls, 1);
}

TEST_F(ColorPortalTest, TakesNothingWhenTheUserGivesUpOrTheAnswerIsNoColor) {
    Portal portal(bus.Connect("desktop"));
    int calls = 0;
    const auto answer = [&](uint response, const QVariantMap& results) {
        Ask(portal, ++calls);
        portal.Answer(response, results);
        QTest::qWait(50);
    };
    answer(1, ColorResults(1, 1, 1));
    answer(0, {});
    answer(0, {{"color", "red"}});
    answer(0, ColorResults(1, 1, 1.5));
    EXPECT_TRUE(picked.empty());
    EXPECT_TRUE(button.isEnabled());
}

TEST_F(ColorPortalTest, AsksAgainWhereThePortalEndedBeforeItAnswered) {
    Portal portal(bus.Connect("desktop"));
    Ask(portal, 1);
    portal.End();
    QTest::qWait(50);
    portal.Begin();
    EXPECT_TRUE(picked.empty());
    EXPECT_TRUE(button.isEnabled());

    Ask(portal, 2);
    portal.Answer(0, ColorResults(0, 0, 1));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picked.empty(); }));
}

TEST_F(ColorPortalTest, SaysThatTheDesktopHasNoneOnceThatIsKnown) {
    EXPECT_TRUE(button.isEnabled());
    button.click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !button.isEnabled(); }));
    EXPECT_EQ(button.toolTip(), "This desktop lets no program see the screen");
}

}  // namespace

}  // namespace kirto::test
