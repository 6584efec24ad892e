#include "desktop/qt/browser.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

// A desktop with no programs but the test's.
struct BrowserTest : testing::Test {
    TemporaryFolder home;
    ScopedEnvironment programs{"PATH", (home.File("bin") + ":/usr/bin:/bin").c_str()};
    ScopedEnvironment user_data{"XDG_DATA_HOME", home.File("data").c_str()};
    ScopedEnvironment system_data{"XDG_DATA_DIRS", home.File("data").c_str()};
    ScopedEnvironment browser{"BROWSER", nullptr};

    BrowserTest() {
        fs::create_directories(home.File("bin"));
        fs::create_directories(home.File("data/applications"));
        for (const char* name : {"xdg-settings", "xdg-mime", "x-www-browser", "xdg-open"})
            AddScript(name, "exit 1");
    }
    void Write(const std::string& name, const std::string& text) const {
        WriteBytes(home.File(name), {text.begin(), text.end()});
    }
    void AddScript(const std::string& name, const std::string& script) const {
        Write("bin/" + name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(home.File("bin/" + name), fs::perms::owner_all);
    }
    // A program that notes its name and what it is called with.
    void AddViewer(const std::string& name) const {
        AddScript(name, "echo \"" + name + " $*\" > '" + home.File("partial") + "'; mv '" +
                            home.File("partial") + "' '" + home.File("called") + "'");
    }
    // An application of the desktop that runs that program.
    void AddApplication(const std::string& viewer) const {
        AddViewer(viewer);
        Write("data/applications/" + viewer + ".desktop",
              "[Desktop Entry]\nExec=" + viewer + " %u\n");
    }
    // What the viewer noted.
    std::string Called() const {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (!fs::exists(home.File("called")) && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        const std::vector<uint8> bytes = ReadBytes(home.File("called"));
        return {bytes.begin(), bytes.end()};
    }
};

}  // namespace

TEST_F(BrowserTest, TriesTheProgramsOfTheVariableFirst) {
    AddViewer("mine");
    const ScopedEnvironment variable("BROWSER", "kirto-no-such-program:mine --show");
    AddApplication("theirs");
    AddScript("xdg-settings", "echo theirs.desktop");

    EXPECT_TRUE(OpenInBrowser("/tmp/a b.gif"));

    EXPECT_EQ(Called(), "mine --show /tmp/a b.gif\n");
}

TEST_F(BrowserTest, ShowsTheFileInTheDefaultWebBrowser) {
    AddApplication("web");
    AddApplication("gif");
    AddScript("xdg-settings", "[ \"$*\" = 'get default-web-browser' ] && echo web.desktop");
    AddScript("xdg-mime", "echo gif.desktop");

    EXPECT_TRUE(OpenInBrowser("/tmp/a b.gif"));

    EXPECT_EQ(Called(), "web file:///tmp/a%20b.gif\n");
}

TEST_F(BrowserTest, TakesTheSystemsBrowserWhereTheDesktopHasNone) {
    AddScript("xdg-settings", "echo uninstalled.desktop");
    AddScript("xdg-mime", "echo gif.desktop");
    AddApplication("gif");
    fs::remove(home.File("bin/x-www-browser"));
    AddViewer("x-www-browser");

    EXPECT_TRUE(OpenInBrowser("/tmp/a.gif"));

    EXPECT_EQ(Called(), "x-www-browser /tmp/a.gif\n");
}

TEST_F(BrowserTest, ShowsTheFileInTheDefaultProgramForGifsWithoutABrowser) {
    const ScopedEnvironment own_programs("PATH", home.File("bin").c_str());
    AddApplication("gif");
    AddScript("xdg-settings", "echo; exit 0");
    AddScript("xdg-mime", "[ \"$*\" = 'query default image/gif' ] && echo gif.desktop");
    fs::remove(home.File("bin/x-www-browser"));
    fs::create_symlink("/bin/mv", home.File("bin/mv"));

    EXPECT_TRUE(OpenInBrowser("/tmp/a.gif"));

    EXPECT_EQ(Called(), "gif file:///tmp/a.gif\n");
}

TEST_F(BrowserTest, AsksTheDesktopToOpenTheFileAtLast) {
    const ScopedEnvironment own_programs("PATH", home.File("bin").c_str());
    fs::remove(home.File("bin/x-www-browser"));
    fs::create_symlink("/bin/mv", home.File("bin/mv"));
    AddViewer("xdg-open");

    EXPECT_TRUE(OpenInBrowser("/tmp/a.gif"));

    EXPECT_EQ(Called(), "xdg-open /tmp/a.gif\n");
}

TEST_F(BrowserTest, SaysWhenNothingCouldBeStarted) {
    const ScopedEnvironment own_programs("PATH", home.File("nowhere").c_str());

    EXPECT_FALSE(OpenInBrowser("/tmp/a.gif"));
}

TEST_F(BrowserTest, GivesUpOnADesktopThatDoesNotAnswer) {
    AddScript("xdg-settings", "exec sleep 600");
    AddViewer("x-www-browser");

    EXPECT_TRUE(OpenInBrowser("/tmp/a.gif"));

    EXPECT_EQ(Called(), "x-www-browser /tmp/a.gif\n");
}

}  // namespace kirto::test
