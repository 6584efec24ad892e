#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/kirto.h"
#include "app/recovery/crash_recovery.h"
#include "cli/cli_run.h"
#include "document/command_codes.h"
#include "kit/idle_barrier.h"
#include "support/environment.h"
#include "support/fake_desktop.h"
#include "support/fake_roster.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr int kPatienceMilliseconds = 120000;

// An editor without a screen that writes the copy of its document at once.
class EditorRecovery : public ::testing::Test {
  protected:
    EditorRecovery() {
        home_.SetEnvironment("QT_QPA_PLATFORM", "offscreen");
        home_.SetEnvironment("XDG_STATE_HOME", home_.HomeFile("state"));
        home_.SetEnvironment("KIRTO_RECOVERY_DELAY", "0");
        fs::create_directories(Folder());
        notices_ = inotify_init1(IN_CLOEXEC);
        inotify_add_watch(notices_, Folder().c_str(), IN_CREATE | IN_MOVED_TO);
        const std::string ppm = "P6 2 1 255\n\xFF\x80\x01\x02\x03\x04";
        home_.Write("picture.ppm", {ppm.begin(), ppm.end()});
    }
    ~EditorRecovery() override { close(notices_); }

    std::string Folder() const { return home_.HomeFile("state/kirto/recovery"); }
    // Starts the editor, which inserts the picture, and waits until the copy of that is there.
    // Returns its process.
    int StartAndEdit() {
        const int editor = home_.StartProgram(KIRTO_EDITOR, {"picture.ppm"});
        while (copy_.empty())
            if (!ReadNotices()) break;
        return editor;
    }
    // How the process has ended, after the signal.
    static int End(int process, int signal) {
        int status = 0;
        kill(process, signal);
        waitpid(process, &status, 0);
        return status;
    }

    CliHome home_;
    std::string copy_;

  private:
    bool ReadNotices() {
        alignas(inotify_event) char buffer[4096];
        pollfd waiting{notices_, POLLIN, 0};
        if (poll(&waiting, 1, kPatienceMilliseconds) <= 0) return false;
        const ssize_t count = read(notices_, buffer, sizeof(buffer));
        for (const char* at = buffer; at < buffer + count;) {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            const std::string name = event->len > 0 ? event->name : "";
            if (name.ends_with(".recovery")) copy_ = Folder() + "/" + name;
            at += sizeof(inotify_event) + event->len;
        }
        return count > 0;
    }

    int notices_ = -1;
};

TEST_F(EditorRecovery, TheNextEditorRecoversThePixelsOfOneThatWasKilled) {
    const int editor = StartAndEdit();
    ASSERT_FALSE(copy_.empty());
    EXPECT_TRUE(WIFSIGNALED(End(editor, SIGKILL)));

    Prefs prefs{Prefs::BuiltIn{}};
    FakeDesktop desktop;
    FakeRoster roster;
    IdleBarrier barrier;
    CrashRecovery recovery(Folder());
    Kirto application(prefs, desktop, roster);
    application.AddHandler(&barrier);
    application.UseRecovery(recovery);
    application.PostMessage(kOfferRecovery);
    application.Run();
    barrier.Wait(application);
    barrier.Wait(application);

    ASSERT_EQ(application.FrameCount(), 1);
    EXPECT_EQ(PixelsOf(*application.FrameAt(0)->bitmap),
              (std::vector<uint32>{0xFFFF8001, 0xFF020304}));
    EXPECT_EQ(application.FrameAt(0)->name, "picture.ppm");
    EXPECT_TRUE(application.Modified());
    application.Quit();
}

TEST_F(EditorRecovery, AnEditorThatIsToldToEndLeavesItsCopy) {
    const int editor = StartAndEdit();
    ASSERT_FALSE(copy_.empty());

    const int status = End(editor, SIGTERM);

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
    EXPECT_TRUE(fs::exists(copy_));
}

TEST_F(EditorRecovery, APictureOfTheWindowAsksNothing) {
    EXPECT_TRUE(WIFSIGNALED(End(StartAndEdit(), SIGKILL)));

    const RunResult result = home_.RunProgram(KIRTO_EDITOR, {"--screenshot", "out.png"});

    EXPECT_EQ(result.status, 0) << result.err;  // an alert makes it 1
    EXPECT_TRUE(fs::exists(copy_));
}

}  // namespace

}  // namespace kirto::test
