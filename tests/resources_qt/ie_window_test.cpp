#include "resources/qt/ie_window.h"

#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "resources/resources_writer.h"
#include "resources_qt/ie_window_fixture.h"

namespace kirto::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr uint32 kPing = FourCharCode("ping");

void AddLimits(BMessage* archive, float least_width, float most_width, float least_height,
               float most_height) {
    archive->AddFloat(kArchiveMinWidth, least_width);
    archive->AddFloat(kArchiveMaxWidth, most_width);
    archive->AddFloat(kArchiveMinHeight, least_height);
    archive->AddFloat(kArchiveMaxHeight, most_height);
}

BMessage ButtonArchive(const char* name, const std::string& label) {
    BMessage button;
    button.AddString(kArchiveClass, "BButton");
    button.AddString(kArchiveName, name);
    button.AddString(kArchiveLabel, label);
    button.AddRect(kArchiveFrame, BRect(10, 10, 90, 30));
    button.AddMessage(kArchiveMessage, BMessage(kPing));
    return button;
}

void HandleEvents() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class IEWindowTest : public IEWindowFixture {};

}  // namespace

TEST_F(IEWindowTest, TakesTitleNamePlaceAndSizeFromTheArchive) {
    Open();

    EXPECT_EQ(window->windowTitle(), "A window");
    EXPECT_EQ(window->Name(), "Window");
    EXPECT_EQ(window->pos(), QPoint(50, 60));
    EXPECT_EQ(window->size(), QSize(400, 300));
    EXPECT_FALSE(window->isVisible());
}

TEST_F(IEWindowTest, ANameThatNoResourceHoldsGivesAPlaceholderThatSaysSo) {
    Open("Elsewhere");

    EXPECT_EQ(window->windowTitle(), "Window \"Elsewhere\" not found in resources!");
    EXPECT_EQ(window->pos(), QPoint(32, 32));
    EXPECT_EQ(window->size(), QSize(369, 33));
}

TEST_F(IEWindowTest, DamagedBytesGiveThePlaceholderToo) {
    const TemporaryFolder folder;
    ResourcesWriter writer;
    writer.Add(kWindowArchiveType, 0, "Damaged", {1, 2, 3});
    WriteBytes(folder.File("rsrc"), writer.Container());
    resources->Handler().AddResourceFile(entry_ref(folder.File("rsrc")));

    Open("Damaged");

    EXPECT_EQ(window->windowTitle(), "Window \"Damaged\" not found in resources!");
}

TEST_F(IEWindowTest, ALayoutForAnotherFontIsScaledToTheDesktopsFont) {
    BMessage archive = WindowArchive({100, 50, 200, 150});
    archive.RemoveName(kArchiveFontHeight);
    archive.AddFloat(kArchiveFontHeight, SystemFontHeight() / 2);

    Open(archive);

    const float factor = 2 * 1.03f;
    EXPECT_EQ(window->x(), static_cast<int>(100 * factor + 0.5f));
    EXPECT_EQ(window->y(), static_cast<int>(50 * factor + 0.5f));
    const float left = 100 * factor + 0.5f;
    const float right = 200 * factor + 0.5f;
    EXPECT_EQ(window->width(), static_cast<int>(right - left) + 1);
}

TEST_F(IEWindowTest, BitZeroOfTheFrameworkFlagsCentersTheWindow) {
    BMessage archive = WindowArchive();
    archive.AddInt32(kArchiveFrameworkFlags, 3);

    Open(archive);

    const QSize screen = window->screen()->size();
    EXPECT_EQ(window->x(), (screen.width() - 400) / 2);
    EXPECT_EQ(window->y(), (screen.height() - 300) / 2);
}

TEST_F(IEWindowTest, OtherFrameworkFlagsDoNothing) {
    BMessage archive = WindowArchive();
    archive.AddInt32(kArchiveFrameworkFlags, ~kCentered);

    EXPECT_EQ(Open(archive).pos(), QPoint(50, 60));
}

TEST_F(IEWindowTest, EqualLimitsFixTheSize) {
    BMessage archive = WindowArchive({0, 0, 100, 100});
    AddLimits(&archive, 200, 200, 150, 150);

    Open(archive);

    EXPECT_EQ(window->minimumSize(), QSize(201, 151));
    EXPECT_EQ(window->maximumSize(), QSize(201, 151));
    EXPECT_EQ(window->size(), QSize(201, 151));
}

TEST_F(IEWindowTest, AFixedWindowIsNoSmallerThanItsScaledFrame) {
    BMessage archive = WindowArchive({0, 0, 300, 99});
    AddLimits(&archive, 200, 200, 150, 150);

    EXPECT_EQ(Open(archive).size(), QSize(301, 151));
}

TEST_F(IEWindowTest, LimitsThatDifferLeaveTheUserTheRoomBetween) {
    BMessage archive = WindowArchive();
    AddLimits(&archive, 200, 600, 150, 500);

    Open(archive);

    EXPECT_EQ(window->minimumSize(), QSize(201, 151));
    EXPECT_EQ(window->maximumSize(), QSize(601, 501));
    EXPECT_EQ(window->size(), QSize(400, 300));
}

TEST_F(IEWindowTest, AWindowThatIsNotResizableKeepsItsFramesSize) {
    BMessage archive = WindowArchive();
    archive.AddInt32(kArchiveFlags, kNotResizable);

    Open(archive);

    EXPECT_EQ(window->minimumSize(), QSize(400, 300));
    EXPECT_EQ(window->maximumSize(), QSize(400, 300));
}

TEST_F(IEWindowTest, LabelsThatNeedMoreRoomThanTheLimitsGetIt) {
    BMessage archive = WindowArchive({0, 0, 50, 50});
    archive.AddMessage(kArchiveViews, ButtonArchive("wide", std::string(80, 'm')));
    AddLimits(&archive, 50, 50, 50, 50);

    Open(archive);
    window->Show();

    const auto* button = window->findChild<QPushButton*>("wide");
    EXPECT_GE(button->width(), button->sizeHint().width());
    EXPECT_GT(window->width(), button->width() - 1);
}

TEST_F(IEWindowTest, AFixedWindowGrowsWithAFontThatGrowsLater) {
    BMessage archive = WindowArchive({0, 0, 50, 50});
    archive.AddMessage(kArchiveViews, ButtonArchive("wide", std::string(40, 'm')));
    AddLimits(&archive, 50, 50, 50, 50);
    Open(archive);
    window->Show();
    const int before = window->width();

    QFont font = window->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    window->setFont(font);
    HandleEvents();

    EXPECT_GT(window->width(), before);
}

TEST_F(IEWindowTest, FramesThatAreNoNumbersDoNoHarm) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    BMessage archive = WindowArchive({none, -1e30f, 1e30f, none});
    archive.RemoveName(kArchiveFontHeight);
    archive.AddFloat(kArchiveFontHeight, 0);
    AddLimits(&archive, none, 0, 0, 0);

    Open(archive);

    EXPECT_LE(window->width(), window->screen()->size().width());
}

TEST_F(IEWindowTest, ItsControlsSendItTheirMessages) {
    BMessage archive = WindowArchive();
    archive.AddMessage(kArchiveViews, ButtonArchive("button", "Ping"));
    Open(archive);

    window->findChild<QPushButton*>("button")->click();
    HandleEvents();

    EXPECT_THAT(window->codes, ElementsAre("ping"));
}

TEST_F(IEWindowTest, IsInTheWindowListFromItsConstruction) {
    Open();
    IEResourceHandler& handler = resources->Handler();

    handler.RemoveFromWindowList(window);  // is listed: nobody is asked to quit
    handler.RemoveFromWindowList(window);

    EXPECT_THAT(AppCodes(), ElementsAre("quit"));
}

TEST_F(IEWindowTest, LeavesTheWindowListWhenItQuits) {
    Open();

    window->Quit();

    EXPECT_THAT(AppCodes(), IsEmpty());
}

TEST_F(IEWindowTest, QuittingWithoutBeingListedAsksTheApplicationToQuit) {
    Open();
    resources->Handler().RemoveFromWindowList(window);

    window->Quit();

    EXPECT_THAT(AppCodes(), ElementsAre("quit"));
}

TEST_F(IEWindowTest, QuittingASecondTimeDoesNothing) {
    Open();

    window->Quit();
    window->Quit();

    EXPECT_THAT(AppCodes(), IsEmpty());
}

TEST_F(IEWindowTest, AModalWindowIsNotListed) {
    BMessage archive = WindowArchive();
    archive.RemoveName(kArchiveType);
    archive.AddInt32(kArchiveType, kModalWindow);
    Open(archive);
    EXPECT_TRUE(window->IsModal());
    EXPECT_TRUE(window->isModal());

    const PortWindow other;
    resources->Handler().RemoveFromWindowList(&other.window);  // the list is empty

    EXPECT_THAT(AppCodes(), ElementsAre("quit"));
}

TEST_F(IEWindowTest, WithoutResourcesItOnlyHasItsShape) {
    const AlertRecorder alerts;
    BMessage archive = WindowArchive();
    archive.AddInt32(kArchiveFrameworkFlags, kCentered);
    AddLimits(&archive, 10, 10, 10, 10);
    Use({{"Window", archive}});
    resources->Handler().AddResourceFile(entry_ref("/nonexistent"));

    Open();
    window->Messenger().SendMessage(kPing);
    HandleEvents();

    EXPECT_THAT(alerts.Lines(), ElementsAre("STOP [] Resource file open error!\n | Cancel"));
    EXPECT_EQ(window->windowTitle(), "A window");
    EXPECT_EQ(window->pos(), QPoint(50, 60));
    EXPECT_EQ(window->size(), QSize(400, 300));
    EXPECT_THAT(window->codes, IsEmpty());
    resources->Handler().RemoveFromWindowList(window);
    EXPECT_THAT(AppCodes(), ElementsAre("quit"));
}

TEST_F(IEWindowTest, QuittingDeletesItAndEndsItsMessages) {
    const BMessenger messenger = Open().Messenger();
    window->Show();
    EXPECT_TRUE(messenger.IsValid());

    window->Quit();
    EXPECT_FALSE(window->isVisible());
    HandleEvents();

    EXPECT_TRUE(window.isNull());
    EXPECT_FALSE(messenger.IsValid());
}

TEST_F(IEWindowTest, GoingWithItsParentEndsItsMessagesToo) {
    auto parent = std::make_unique<QWidget>();
    window = new TestWindow("Window", resources->Handler(), parent.get());
    const BMessenger messenger = window->Messenger();

    parent.reset();

    EXPECT_FALSE(messenger.IsValid());
}

TEST_F(IEWindowTest, TheWishToQuitIsGrantedHoweverItIsExpressed) {
    Open().Messenger().SendMessage(B_QUIT_REQUESTED);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isNull(); }));

    Open().Show();
    window->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isNull(); }));

    Open().Show();
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isNull(); }));
}

TEST_F(IEWindowTest, AWindowThatDoesNotAgreeStays) {
    Open().Show();
    window->agrees = false;

    window->Messenger().SendMessage(B_QUIT_REQUESTED);
    EXPECT_FALSE(window->close());
    QTest::keyClick(window, Qt::Key_Escape);
    HandleEvents();

    ASSERT_FALSE(window.isNull());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(IEWindowTest, WindowsThatDependOnItAreAskedToQuitWithIt) {
    Open();
    const QPointer<TestWindow> dependant = new TestWindow("Window", resources->Handler());
    const QPointer<TestWindow> gone = new TestWindow("Window", resources->Handler());
    const QPointer<TestWindow> other = new TestWindow("Window", resources->Handler());
    window->AddDependantWindow(*dependant);
    window->AddDependantWindow(*gone);
    delete gone;

    window->Quit();
    HandleEvents();
    HandleEvents();

    EXPECT_TRUE(dependant.isNull());
    EXPECT_FALSE(other.isNull());
    delete other;
}

}  // namespace kirto::test
