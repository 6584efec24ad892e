#include "desktop/desktop_entry.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

// Data folders of a user and of a system that know no applications but the test's.
struct DesktopEntryTest : testing::Test {
    TemporaryFolder user;
    TemporaryFolder system;
    ScopedEnvironment user_data{"XDG_DATA_HOME", user.Path().c_str()};
    ScopedEnvironment system_data{"XDG_DATA_DIRS", ("/nowhere:" + system.Path()).c_str()};

    static void Describe(const TemporaryFolder& folder, const std::string& name,
                         const std::string& text) {
        const fs::path path = folder.File("applications/" + name);
        fs::create_directories(path.parent_path());
        WriteBytes(path.string(), {text.begin(), text.end()});
    }
    // How an application that is described by the line is called.
    Words CallOf(const std::string& exec, const std::string& file = "/a b.gif") const {
        Describe(user, "app.desktop", "[Desktop Entry]\nExec=" + exec + "\n");
        return DesktopEntryCall("app.desktop", file);
    }
};

}  // namespace

TEST_F(DesktopEntryTest, PutsTheFileInThePlaceOfItsCode) {
    EXPECT_EQ(CallOf("show --new %f -x"), (Words{"show", "--new", "/a b.gif", "-x"}));
    EXPECT_EQ(CallOf("show %F"), (Words{"show", "/a b.gif"}));
}

TEST_F(DesktopEntryTest, GivesAnAddressWhereOneIsWanted) {
    EXPECT_EQ(CallOf("show %u"), (Words{"show", "file:///a%20b.gif"}));
    EXPECT_EQ(CallOf("show --open=%U", "/\xc3\xa4?#%.gif"),
              (Words{"show", "--open=file:///%C3%A4%3F%23%25.gif"}));
}

TEST_F(DesktopEntryTest, PutsTheFileLastWhereNoCodeAsksForIt) {
    EXPECT_EQ(CallOf("show --plain"), (Words{"show", "--plain", "/a b.gif"}));
}

TEST_F(DesktopEntryTest, LeavesOutWhatOtherCodesStandFor) {
    EXPECT_EQ(CallOf("show %i %c %f 100%% %"), (Words{"show", "/a b.gif", "100%", "%"}));
}

TEST_F(DesktopEntryTest, KeepsQuotedWordsTogether) {
    EXPECT_EQ(CallOf(R"("/opt/my show" "a \\"b\\" \\$c" "" x\sy %f)"),
              (Words{"/opt/my show", "a \"b\" $c", "", "x", "y", "/a b.gif"}));
}

TEST_F(DesktopEntryTest, UnderstandsTheEscapesOfValues) {
    EXPECT_EQ(CallOf(R"(show "a\tb\nc\rd" e\qf \)"),
              (Words{"show", "a\tb\nc\rd", "e\\qf", "\\", "/a b.gif"}));
}

TEST_F(DesktopEntryTest, AsksTheUsersFolderBeforeTheSystems) {
    Describe(system, "app.desktop", "[Desktop Entry]\nExec=theirs\n");
    EXPECT_EQ(DesktopEntryCall("app.desktop", "/f"), (Words{"theirs", "/f"}));

    Describe(user, "app.desktop", "[Desktop Entry]\nExec=mine\n");
    EXPECT_EQ(DesktopEntryCall("app.desktop", "/f"), (Words{"mine", "/f"}));
}

TEST_F(DesktopEntryTest, FindsApplicationsInFoldersByTheDashesOfTheirIds) {
    Describe(system, "org/kits/show-all.desktop", "[Desktop Entry]\nExec=show\n");

    EXPECT_EQ(DesktopEntryCall("org-kits-show-all.desktop", "/f"), (Words{"show", "/f"}));
    EXPECT_TRUE(DesktopEntryCall("org-show-all.desktop", "/f").empty());
}

TEST_F(DesktopEntryTest, LooksInTheHomeFolderWithoutVariables) {
    const TemporaryFolder home;
    fs::create_directories(home.File(".local/share/applications"));
    const std::string text = "[Desktop Entry]\nExec=show\n";
    WriteBytes(home.File(".local/share/applications/app.desktop"), {text.begin(), text.end()});
    const ScopedEnvironment home_folder("HOME", home.Path().c_str());
    const ScopedEnvironment no_user("XDG_DATA_HOME", nullptr);
    const ScopedEnvironment no_system("XDG_DATA_DIRS", nullptr);

    EXPECT_EQ(DesktopEntryCall("app.desktop", "/f"), (Words{"show", "/f"}));
}

TEST_F(DesktopEntryTest, ReadsItsOwnGroupAlone) {
    Describe(user, "app.desktop",
             "# Exec=comment\nExec=before\n[Desktop Entry]\n#Exec=comment\nno key\n"
             "Exec = show %f\t\nExec=twice\n[Desktop Action New]\nExec=other\nTerminal=true\n");

    EXPECT_EQ(DesktopEntryCall("app.desktop", "/f"), (Words{"show", "/f"}));
}

TEST_F(DesktopEntryTest, CallsNothingThatCannotShowAFile) {
    Describe(user, "hidden.desktop", "[Desktop Entry]\nHidden=true\nExec=show\n");
    Describe(user, "terminal.desktop", "[Desktop Entry]\nTerminal=true\nExec=show\n");
    Describe(user, "link.desktop", "[Desktop Entry]\nURL=x\nExec=\n");

    EXPECT_TRUE(DesktopEntryCall("hidden.desktop", "/f").empty());
    EXPECT_TRUE(DesktopEntryCall("terminal.desktop", "/f").empty());
    EXPECT_TRUE(DesktopEntryCall("link.desktop", "/f").empty());
}

TEST_F(DesktopEntryTest, RefusesIdsThatAreNone) {
    Describe(user, "app.desktop", "[Desktop Entry]\nExec=show\n");

    EXPECT_TRUE(DesktopEntryCall("", "/f").empty());
    EXPECT_TRUE(DesktopEntryCall("missing.desktop", "/f").empty());
    EXPECT_TRUE(DesktopEntryCall("../applications/app.desktop", "/f").empty());
}

}  // namespace kirto::test
