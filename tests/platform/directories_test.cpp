#include "platform/directories.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "support/environment.h"

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
