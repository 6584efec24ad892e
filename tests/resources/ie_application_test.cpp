#include "resources/ie_application.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/command_codes.h"
#include "resources/recording_application.h"
#include "resources/resources_writer.h"
#include "support/test_support.h"

namespace kirto::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

using Application = RecordingApplication<IEApplication>;

constexpr const char* kSignature = "application/x-test";
constexpr uint32 kCommand = FourCharCode("comm");

}  // namespace

TEST(IEApplication, WithoutAResourceFileThereIsNoHandlerAndNoError) {
    const AlertRecorder alerts;
    Application app(kSignature);
    EXPECT_EQ(app.Signature(), kSignature);
    EXPECT_EQ(app.Resources(), nullptr);
    EXPECT_EQ(app.Error(), 0);
    EXPECT_THAT(alerts.Lines(), IsEmpty());
    app.PostMessage(kCommand);
    EXPECT_THAT(app.HandleAll(), ElementsAre("comm"));
}

TEST(IEApplication, OpensItsResourceFile) {
    const TemporaryFolder folder;
    ResourcesWriter writer;
    writer.Add(FourCharCode("TEXT"), 1, "name", {1, 2, 3});
    WriteBytes(folder.File("r"), writer.Container());
    Application app(kSignature, entry_ref(folder.File("r")));
    EXPECT_EQ(app.Error(), 0);
    ASSERT_NE(app.Resources(), nullptr);
    EXPECT_TRUE(app.Resources()->FindResource("name", FourCharCode("TEXT")).has_value());
    app.PostMessage(kCommand);
    EXPECT_THAT(app.HandleAll(), ElementsAre("comm"));
}

TEST(IEApplication, IsAskedToQuitByItsHandler) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("r"), ResourcesWriter().Container());
    Application app(kSignature, entry_ref(folder.File("r")));
    const PortWindow window;
    app.Resources()->RemoveFromWindowList(&window.window);
    EXPECT_THAT(app.HandleAll(), ElementsAre("quit"));
}

TEST(IEApplication, EndsAsSoonAsItRunsWhenItsResourcesCantBeOpened) {
    const AlertRecorder alerts;
    Application app(kSignature, entry_ref("/nowhere/kirto.rsrc"));
    EXPECT_EQ(app.Error(), -1);
    ASSERT_NE(app.Resources(), nullptr);
    EXPECT_EQ(app.Resources()->Error(), -1);
    EXPECT_THAT(alerts.Lines(), ElementsAre("STOP [] Resource file open error!\n | Cancel"));
    app.PostMessage(kCommand);
    // Neither asked whether to quit, nor does it come to the command.
    EXPECT_THAT(app.HandleAll(), IsEmpty());
}

TEST(IEApplication, TheCommandToEndQuitsWithoutAsking) {
    Application app(kSignature);
    app.PostMessage(kResourcesMissing);
    app.PostMessage(kCommand);
    EXPECT_THAT(app.HandleAll(), IsEmpty());
    EXPECT_EQ(app.PostMessage(kCommand), B_NOT_ALLOWED);
}

TEST(IEApplication, OtherMessagesAreHandledAsByAnyApplication) {
    Application app(kSignature);
    app.PostMessage(B_REFS_RECEIVED);
    app.PostMessage(B_ABOUT_REQUESTED);
    app.PostMessage(B_QUIT_REQUESTED);
    app.PostMessage(kCommand);
    EXPECT_THAT(app.HandleAll(), ElementsAre("refs", "about", "quit", "comm"));
}

}  // namespace kirto::test
