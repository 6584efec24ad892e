#include "ui/dialogs/qt_alerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <thread>

#include "support/test_support.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

BAlert Question() {
    return BAlert("", "Do you want to?", "Cancel", "Discard", "Save");
}

// The alert that is up, or null.
QMessageBox* Dialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible()) return box;
    }
    return nullptr;
}

void Click(const QString& label) {
    for (QAbstractButton* button : Dialog()->buttons()) {
        if (button->text().remove('&') == label) {
            button->click();
            return;
        }
    }
    ADD_FAILURE() << "no button " << label.toStdString();
}

class QtAlertsTest : public ::testing::Test {
  protected:
    // Shows the alert on the GUI thread and acts on its dialog; the answer.
    static int32 Ask(BAlert alert, const std::function<void()>& act) {
        QTimer::singleShot(0, [&act] {
            ASSERT_TRUE(WaitFor([] { return Dialog() != nullptr; }));
            act();
        });
        return alert.Go();
    }
    // Shows the alert from another thread and acts on its dialog; the answer.
    static int32 AskElsewhere(const BAlert& alert, const std::function<void()>& act) {
        std::future<int32> answer = std::async(
            std::launch::async, [asked = BAlert(alert)]() mutable { return asked.Go(); });
        EXPECT_TRUE(WaitFor([] { return Dialog() != nullptr; }));
        act();
        const auto answered = [&] {
            return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        };
        EXPECT_TRUE(WaitFor(answered));
        return answer.get();
    }

    QtAlerts alerts;
};

TEST_F(QtAlertsTest, ShowTheAlertsTextAndButtonsInTheirOrder) {
    Ask(Question(), [] {
        QStringList labels;
        std::vector<int> places;
        for (const QAbstractButton* button : Dialog()->buttons()) {
            labels.append(button->text().remove('&'));
            places.push_back(button->mapTo(button->window(), QPoint()).x());
        }
        EXPECT_EQ(Dialog()->text(), "Do you want to?");
        EXPECT_EQ(labels, (QStringList{"Cancel", "Discard", "Save"}));
        EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
        EXPECT_EQ(Dialog()->objectName(), "Alert");
        EXPECT_TRUE(Dialog()->isModal());
        Click("Save");
    });
}

TEST_F(QtAlertsTest, AnswerWithTheChosenButtonsIndex) {
    EXPECT_EQ(Ask(Question(), [] { Click("Cancel"); }), 0);
    EXPECT_EQ(Ask(Question(), [] { Click("Discard"); }), 1);
    EXPECT_EQ(Ask(Question(), [] { Click("Save"); }), 2);
}

TEST_F(QtAlertsTest, AnswerWithTheIndexWhateverTheDesktopDoesToTheLabels) {
    EXPECT_EQ(Ask(Question(),
                  [] {
                      QAbstractButton* button = Dialog()->buttons().at(1);
                      button->setText("Dis&card!");
                      button->click();
                  }),
              1);
}

TEST_F(QtAlertsTest, TakeEscapeForCancel) {
    const auto escape = [] { QTest::keyClick(Dialog(), Qt::Key_Escape); };

    EXPECT_EQ(Ask(BAlert("", "text", "Cancel", "Open", "Insert"), escape), 0);
    EXPECT_EQ(Ask(BAlert("", "text", "Replace", "Cancel"), escape), 1);
    EXPECT_EQ(Ask(BAlert("", "text", "OK"), escape), 0);
}

TEST_F(QtAlertsTest, TakeEscapeForNoAnswerWhereNothingIsCancelled) {
    EXPECT_EQ(Ask(BAlert("", "text", "OK", "Salvage"),
                  [] {
                      QTest::keyClick(Dialog(), Qt::Key_Escape);
                      ASSERT_NE(Dialog(), nullptr);
                      Click("OK");
                  }),
              0);
}

TEST_F(QtAlertsTest, TakeEnterForTheLastButton) {
    EXPECT_EQ(Ask(Question(), [] { QTest::keyClick(Dialog(), Qt::Key_Return); }), 2);
}

TEST_F(QtAlertsTest, TakeEnterForTheButtonThatTheAlertSays) {
    BAlert alert("", "text", "Salvage", "OK");
    alert.SetDefaultButton(0);

    EXPECT_EQ(Ask(alert, [] { QTest::keyClick(Dialog(), Qt::Key_Return); }), 0);
}

TEST_F(QtAlertsTest, ShowTheTypeAsAnIcon) {
    const std::pair<alert_type, QMessageBox::Icon> icons[] = {
        {B_INFO_ALERT, QMessageBox::Information},
        {B_IDEA_ALERT, QMessageBox::Information},
        {B_WARNING_ALERT, QMessageBox::Warning},
        {B_STOP_ALERT, QMessageBox::Critical},
    };
    for (const auto& [type, icon] : icons) {
        Ask(BAlert("", "text", "OK", {}, {}, type), [expected = icon] {
            EXPECT_EQ(Dialog()->icon(), expected);
            Click("OK");
        });
    }
}

TEST_F(QtAlertsTest, AreTitledLikeTheProgramUnlessTheyHaveATitle) {
    QApplication::setApplicationDisplayName("Kirto");
    Ask(BAlert("", "text", "OK"), [] {
        EXPECT_EQ(Dialog()->windowTitle(), "Kirto");
        Click("OK");
    });
    Ask(BAlert("Title", "text", "OK"), [] {
        EXPECT_EQ(Dialog()->windowTitle().left(5), "Title");
        Click("OK");
    });
    QApplication::setApplicationDisplayName({});
}

TEST_F(QtAlertsTest, ShowTextThatLooksLikeMarkupAsItIs) {
    Ask(BAlert("", "A file named \"<b>x</b>\" exists.", "OK"), [] {
        EXPECT_EQ(Dialog()->textFormat(), Qt::PlainText);
        EXPECT_EQ(Dialog()->text(), "A file named \"<b>x</b>\" exists.");
        Click("OK");
    });
}

TEST_F(QtAlertsTest, StandInFrontOfTheirWindow) {
    QWidget window;
    alerts.SetParentWindow(&window);

    Ask(Question(), [&] {
        EXPECT_EQ(Dialog()->parentWidget(), &window);
        Click("Cancel");
    });
    EXPECT_EQ(AskElsewhere(Question(),
                           [&] {
                               EXPECT_EQ(Dialog()->parentWidget(), &window);
                               EXPECT_EQ(Dialog()->windowModality(), Qt::ApplicationModal);
                               Click("Cancel");
                           }),
              0);
}

TEST_F(QtAlertsTest, AnswerAnotherThreadWhichWaits) {
    EXPECT_EQ(AskElsewhere(Question(), [] { Click("Cancel"); }), 0);
    EXPECT_EQ(AskElsewhere(Question(), [] { Click("Discard"); }), 1);
    EXPECT_EQ(AskElsewhere(Question(), [] { QTest::keyClick(Dialog(), Qt::Key_Escape); }), 0);
    EXPECT_EQ(AskElsewhere(Question(), [] { QTest::keyClick(Dialog(), Qt::Key_Return); }), 2);
}

TEST_F(QtAlertsTest, GoOnHandlingEventsWhileAnotherThreadWaits) {
    EXPECT_EQ(AskElsewhere(Question(),
                           [] {
                               bool handled = false;
                               QTimer::singleShot(0, [&] { handled = true; });
                               EXPECT_TRUE(WaitFor([&] { return handled; }));
                               Click("Discard");
                           }),
              1);
}

TEST_F(QtAlertsTest, AnswerTwoThreadsAtOnce) {
    const auto ask = [](const char* text) {
        return std::async(std::launch::async,
                          [text] { return BAlert("", text, "Cancel", "Open").Go(); });
    };
    std::future<int32> first = ask("first");
    std::future<int32> second = ask("second");

    for (int answered = 0; answered < 2; ++answered) {
        ASSERT_TRUE(WaitFor([] { return Dialog() != nullptr; }));
        Click(Dialog()->text() == "first" ? "Cancel" : "Open");
    }

    for (const std::future<int32>* answer : {&first, &second}) {
        EXPECT_TRUE(WaitFor([&] {
            return answer->wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        }));
    }
    EXPECT_EQ(first.get(), 0);
    EXPECT_EQ(second.get(), 1);
}

TEST_F(QtAlertsTest, AnswerWithTheLastButtonWhenTheWindowGoes) {
    auto window = std::make_unique<QWidget>();
    alerts.SetParentWindow(window.get());

    EXPECT_EQ(AskElsewhere(Question(), [&] { window.reset(); }), 2);
}

TEST_F(QtAlertsTest, DeleteTheirDialogs) {
    QWidget window;
    alerts.SetParentWindow(&window);

    AskElsewhere(Question(), [] { Click("Cancel"); });
    Ask(Question(), [] { Click("Cancel"); });

    EXPECT_TRUE(WaitFor([&] { return window.findChildren<QMessageBox*>().isEmpty(); }));
}

TEST(QtAlerts, AnswerWithTheLastButtonWhenNoEventsAreHandledAnymore) {
    QtAlerts alerts;
    const auto ask = [&alerts] { return alerts.Present(Question()); };
    std::future<int32> waiting = std::async(std::launch::async, ask);
    EXPECT_EQ(waiting.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    alerts.Close();
    EXPECT_EQ(waiting.get(), 2);
    EXPECT_EQ(std::async(std::launch::async, ask).get(), 2);
    QApplication::processEvents();
    EXPECT_EQ(Dialog(), nullptr);
}

TEST(QtAlerts, PresentTheProgramsAlertsWhileTheyLive) {
    const AlertRecorder recorder;
    {
        const QtAlerts alerts;
        AlertPresenter* installed = InstallAlertPresenter(nullptr);
        EXPECT_EQ(installed, static_cast<const AlertPresenter*>(&alerts));
        InstallAlertPresenter(installed);
    }
    Warn("text");

    EXPECT_EQ(recorder.Lines(), std::vector<std::string>{"WARNING [] text | OK"});
}

}  // namespace

}  // namespace kirto::test
