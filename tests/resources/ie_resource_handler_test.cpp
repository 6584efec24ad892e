#include "resources/ie_resource_handler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/recording_application.h"
#include "resources/resources_writer.h"
#include "support/test_support.h"

namespace kirto::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr type_code kTextType = FourCharCode("TEXT");
constexpr type_code kOtherType = FourCharCode("OTHR");

// A resource file with one text of the name.
entry_ref FileWith(const TemporaryFolder& folder, const std::string& leaf, std::string_view name,
                   std::string_view text) {
    ResourcesWriter writer;
    writer.Add(kTextType, 1, name, {text.begin(), text.end()});
    WriteBytes(folder.File(leaf), writer.Container());
    return entry_ref(folder.File(leaf));
}

std::string Found(const IEResourceHandler& handler, std::string_view name, type_code type) {
    const auto bytes = handler.FindResource(name, type);
    return bytes ? std::string(bytes->begin(), bytes->end()) : "nothing";
}

// A handler of one file, and its application.
struct HandlerFixture {
    TemporaryFolder folder;
    RecordingApplication<BApplication> app{"application/x-test"};
    IEResourceHandler handler{FileWith(folder, "first", "both", "of the first"), &app};
};

}  // namespace

TEST(IEResourceHandler, FindsResourcesByNameAndType) {
    const AlertRecorder alerts;
    const HandlerFixture fixture;
    EXPECT_EQ(fixture.handler.Error(), 0);
    EXPECT_EQ(Found(fixture.handler, "both", kTextType), "of the first");
    EXPECT_EQ(Found(fixture.handler, "neither", kTextType), "nothing");
    EXPECT_THAT(alerts.Lines(), IsEmpty());
}

TEST(IEResourceHandler, ANameThatExistsWithAnotherTypeFindsNothing) {
    const HandlerFixture fixture;
    EXPECT_EQ(Found(fixture.handler, "both", kOtherType), "nothing");
}

TEST(IEResourceHandler, TheFirstFileThatHoldsTheNameWins) {
    HandlerFixture fixture;
    fixture.handler.AddResourceFile(FileWith(fixture.folder, "second", "both", "of the second"));
    EXPECT_EQ(Found(fixture.handler, "both", kTextType), "of the first");
}

TEST(IEResourceHandler, LaterFilesAreAskedForWhatTheFirstLacks) {
    HandlerFixture fixture;
    fixture.handler.AddResourceFile(FileWith(fixture.folder, "second", "new", "of the second"));
    fixture.handler.AddResourceFile(FileWith(fixture.folder, "third", "new", "of the third"));
    EXPECT_EQ(Found(fixture.handler, "new", kTextType), "of the second");
}

TEST(IEResourceHandler, AFileThatCantBeOpenedIsAnAlertAndAnError) {
    const AlertRecorder alerts;
    const IEResourceHandler handler(entry_ref("/nowhere/kirto.rsrc"), nullptr);
    EXPECT_EQ(handler.Error(), -1);
    EXPECT_THAT(alerts.Lines(), ElementsAre("STOP [] Resource file open error!\n | Cancel"));
    EXPECT_EQ(Found(handler, "both", kTextType), "nothing");
}

TEST(IEResourceHandler, ADamagedFileCantBeOpened) {
    const AlertRecorder alerts;
    HandlerFixture fixture;
    WriteBytes(fixture.folder.File("damaged"), std::vector<uint8>(2000, 7));
    fixture.handler.AddResourceFile(entry_ref(fixture.folder.File("damaged")));
    EXPECT_EQ(fixture.handler.Error(), -1);
    EXPECT_THAT(alerts.Lines(), ElementsAre("STOP [] Resource file open error!\n | Cancel"));
    EXPECT_EQ(Found(fixture.handler, "both", kTextType), "of the first");
}

TEST(IEResourceHandler, TheErrorStaysWhenALaterFileIsFine) {
    const AlertRecorder alerts;
    HandlerFixture fixture;
    fixture.handler.AddResourceFile(entry_ref(fixture.folder.File("absent")));
    fixture.handler.AddResourceFile(FileWith(fixture.folder, "second", "new", "of the second"));
    EXPECT_EQ(fixture.handler.Error(), -1);
    EXPECT_EQ(Found(fixture.handler, "new", kTextType), "of the second");
}

TEST(IEResourceHandler, RemovingAListedWindowNeverAsksToQuit) {
    HandlerFixture fixture;
    const PortWindow window;
    fixture.handler.AddToWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), IsEmpty());
}

TEST(IEResourceHandler, RemovingTheLastWindowTwiceAsksToQuit) {
    HandlerFixture fixture;
    const PortWindow window;
    fixture.handler.AddToWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), ElementsAre("quit"));
}

TEST(IEResourceHandler, RemovingAWindowTwiceAsksNothingWhileAnotherIsListed) {
    HandlerFixture fixture;
    const PortWindow window;
    const PortWindow other;
    fixture.handler.AddToWindowList(&window.window);
    fixture.handler.AddToWindowList(&other.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), IsEmpty());
}

TEST(IEResourceHandler, RemovingAWindowThatWasNeverListedAsksToQuit) {
    HandlerFixture fixture;
    const PortWindow window;
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), ElementsAre("quit"));
}

TEST(IEResourceHandler, WithoutAnApplicationNobodyIsAsked) {
    const TemporaryFolder folder;
    IEResourceHandler handler(FileWith(folder, "first", "name", "text"), nullptr);
    RecordingApplication<BApplication> app("application/x-test");
    const PortWindow window;
    handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(app.HandleAll(), IsEmpty());
}

TEST(IEResourceHandler, AWindowIsListedOnce) {
    HandlerFixture fixture;
    const PortWindow window;
    fixture.handler.AddToWindowList(&window.window);
    fixture.handler.AddToWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), ElementsAre("quit"));
}

TEST(IEResourceHandler, ModalWindowsNeverEnterTheList) {
    HandlerFixture fixture;
    const PortWindow modal(true);
    const PortWindow window;
    fixture.handler.AddToWindowList(&modal.window);
    // Asks, since nothing is listed.
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), ElementsAre("quit"));
}

TEST(IEResourceHandler, RemovingAModalWindowNeverAsksToQuit) {
    HandlerFixture fixture;
    const PortWindow modal(true);
    fixture.handler.RemoveFromWindowList(&modal.window);
    EXPECT_THAT(fixture.app.HandleAll(), IsEmpty());
}

TEST(IEResourceHandler, WindowsThatAreGoneAreDroppedWhenOneIsRemoved) {
    HandlerFixture fixture;
    const PortWindow gone;
    const PortWindow window;
    fixture.handler.AddToWindowList(&gone.window);
    gone.port->open = false;
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), ElementsAre("quit"));
}

TEST(IEResourceHandler, WindowsThatAreGoneAreDroppedWhenOneIsAdded) {
    HandlerFixture fixture;
    const PortWindow gone;
    const PortWindow window;
    fixture.handler.AddToWindowList(&gone.window);
    gone.port->open = false;
    fixture.handler.AddToWindowList(&window.window);
    // Would be valid again, were it still listed.
    gone.port->open = true;
    fixture.handler.RemoveFromWindowList(&window.window);
    fixture.handler.RemoveFromWindowList(&window.window);
    EXPECT_THAT(fixture.app.HandleAll(), ElementsAre("quit"));
}

}  // namespace kirto::test
