#include "base/directories.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

TEST(Directories, SettingsStandWhereTheEnvironmentSays) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", "/tmp/ann/config");

    EXPECT_EQ(SettingsDirectory(), "/tmp/ann/config");
}

TEST(Directories, ClosingSlashesAreDropped) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", "/tmp/ann/config//");
    const ScopedEnvironment home("HOME", "/home/ann/");

    EXPECT_EQ(SettingsDirectory(), "/tmp/ann/config");
    EXPECT_EQ(HomeDirectory(), "/home/ann");
}

TEST(Directories, ARelativeConfigurationFolderIsIgnored) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", "config");
    const ScopedEnvironment home("HOME", "/home/ann");

    EXPECT_EQ(SettingsDirectory(), "/home/ann/.config");
}

TEST(Directories, WithoutAConfigurationFolderSettingsStandBelowHome) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", nullptr);
    const ScopedEnvironment home("HOME", "/home/ann");

    EXPECT_EQ(SettingsDirectory(), "/home/ann/.config");
}

TEST(Directories, StateStandsWhereTheEnvironmentSays) {
    const ScopedEnvironment state("XDG_STATE_HOME", "/tmp/ann/state/");

    EXPECT_EQ(StateDirectory(), "/tmp/ann/state");
}

TEST(Directories, WithoutAStateFolderStateStandsBelowHome) {
    const ScopedEnvironment state("XDG_STATE_HOME", nullptr);
    const ScopedEnvironment home("HOME", "/home/ann");

    EXPECT_EQ(StateDirectory(), "/home/ann/.local/state");
}

TEST(Directories, MissingFoldersAreMadeForTheUserOnly) {
    const TemporaryFolder folder;

    MakeFolders(folder.File("one/two"));
    MakeFolders(folder.File("one/two"));

    for (const char* name : {"one", "one/two"}) {
        struct stat info {};
        ASSERT_EQ(stat(folder.File(name).c_str(), &info), 0) << name;
        EXPECT_EQ(info.st_mode & 0777, 0700u) << name;
    }
}

TEST(Directories, ARootHomeKeepsItsSlash) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", nullptr);
    const ScopedEnvironment home("HOME", "/");

    EXPECT_EQ(HomeDirectory(), "/");
    EXPECT_EQ(SettingsDirectory(), "/.config");
}

TEST(Directories, WithoutHomeTheAccountTells) {
    const passwd* account = getpwuid(getuid());
    if (!account) GTEST_SKIP() << "this user has no account";
    const std::string expected = account->pw_dir;

    const ScopedEnvironment unset("HOME", nullptr);
    EXPECT_EQ(HomeDirectory(), expected);

    const ScopedEnvironment empty("HOME", "");
    EXPECT_EQ(HomeDirectory(), expected);
}

}  // namespace
}  // namespace kirto::test
