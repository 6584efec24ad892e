// The running application with a fake desktop, a fake roster and a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "app/kirto.h"
#include "document/command_codes.h"
#include "kit/idle_barrier.h"
#include "support/environment.h"
#include "support/fake_desktop.h"
#include "support/fake_roster.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

using Lines = std::vector<std::string>;

// A GIF of 2 x 1 images, each in its own colour, with these delays.
GifBuilder GifOf(const std::vector<int32>& delays);
// An FLC of one black picture of 2 x 1.
std::vector<uint8> SmallFlc();

// Posts commands to the application on its own thread and looks at it while it is idle. The home
// folder and the preview's folder are the fixture's.
class KirtoFixture : public ::testing::Test {
  protected:
    KirtoFixture();
    ~KirtoFixture() override;

    // Makes the application with the settings as they stand, runs it, and forgets the start's lines
    // and messages. Called once, by the test.
    void Start();
    // The two halves, for tests that post commands before the first is handled.
    void Make();
    void Run() { app_->Run(); }
    // Waits until all commands are handled, and those that they have posted in turn.
    void WaitUntilIdle();
    // Handles the command, and the commands that it posts in turn, and returns what the main window
    // was posted meanwhile: "auns auda".
    std::string Do(const BMessage& command);
    std::string Do(uint32 what) { return Do(BMessage(what)); }
    Lines TakeLines() { return desktop_.TakeLines(); }

    // A command with these files of the folder in "refs".
    BMessage Files(uint32 what, const Lines& names) const;
    // A cancel notice of the panel.
    static BMessage CancelOf(const FilePanel* panel);
    // The save panel's message.
    BMessage SaveTo(const std::string& directory, const std::string& name,
                    int64 translator = 0) const;

    // Appends frames of one pixel each, with these names.
    void Append(const Lines& names);
    // The frames' names in order, with the current one in brackets.
    Lines Names() const;
    // The names in the folder, sorted.
    Lines FolderContent() const;
    std::string File(const std::string& name) const { return folder_.File(name); }
    void Write(const std::string& name, const std::vector<uint8>& bytes) const {
        WriteBytes(File(name), bytes);
    }

    TemporaryFolder folder_;
    ScopedEnvironment home_{"HOME", folder_.Path().c_str()};
    Prefs prefs_{Prefs::BuiltIn{}};
    FakeDesktop desktop_;
    FakeRoster roster_;
    IdleBarrier barrier_;
    std::unique_ptr<Kirto> app_;
};

}  // namespace kirto::test
