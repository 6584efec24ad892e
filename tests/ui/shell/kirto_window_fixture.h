// The main window over a real document, with everything else recorded.
#pragma once

#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "app/command_port.h"
#include "app/save_check.h"
#include "document/command_codes.h"
#include "support/fake_roster.h"
#include "support/test_support.h"
#include "support/window_resources.h"
#include "ui/panels/view_fixture.h"
#include "ui/shell/kirto_window.h"
#include "ui/widget_tools.h"

namespace kirto::test {

using Lines = std::vector<std::string>;

// Panels that record what is done with them: "open title=...", "save text=...", "insert shown".
class RecordedPanels : public FilePanelSource {
  public:
    FilePanel* GetPanel(FilePanelKind kind) override;
    Lines TakeLines() { return std::exchange(lines_, {}); }

  private:
    class Panel;

    std::vector<std::unique_ptr<FilePanel>> panels_;
    Lines lines_;
};

// The application's part is the test's: it is recorded, and changes the document only when asked.
class KirtoWindowFixture : public ::testing::Test {
  protected:
    KirtoWindowFixture();

    // Makes the window for the settings and the document as they stand, and shows it.
    void Open(BRect frame = BRect(100, 80, 899, 679));
    // Appends a frame of that size.
    FrameHandle AddFrame(int32 width = 2, int32 height = 1);
    // Lets the window handle the command, and whatever it waits for then.
    void Do(const BMessage& command);
    void Do(uint32 code) { Do(BMessage(code)); }
    // What the application was posted since the last call: "gvwd aslt".
    std::string Posted() { return application->TakeTranscript(); }
    // The last message that the application was posted.
    BMessage LastPosted();
    // Carries out the edits that were posted, as the application does.
    void CarryOutEdits();
    // Handles what was posted to the window.
    static void HandleEvents();

    template <typename View>
    View& Find(const char* name) {
        return *Named<View>(*window, name);
    }
    // A control of one of the panels, where its name is not unique.
    template <typename Control>
    Control& Find(const char* panel, const char* name) {
        return *Named<Control>(Find<QWidget>(panel), name);
    }
    std::string StatusText() { return Find<QLabel>("Status").text().toStdString(); }
    // Types over the field's text without leaving it.
    static void Type(TextControl& field, const QString& text);
    // Types over the field's text and hits Enter.
    void Enter(TextControl& field, const QString& text);

    TemporaryFolder folder;
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document{prefs};
    std::shared_ptr<PortRecorder> application = std::make_shared<PortRecorder>();
    BMessenger commands{std::make_shared<CommandPort>(document, application)};
    RecordedPanels panels;
    FakeRoster roster;
    WindowResources resources;
    std::shared_ptr<const SaveCheck::Finding> found;  // in the last save
    std::unique_ptr<KirtoWindow> window;
};

}  // namespace kirto::test
