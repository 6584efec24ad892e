#include "base/program_files.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace fs = std::filesystem;

TEST(ProgramFiles, AFileBesideTheProgramComesFirst) {
    const TemporaryFolder tree;
    fs::create_directories(tree.File("bin"));
    fs::create_directories(tree.File("libexec/own"));
    WriteBytes(tree.File("bin/helper"), {1});
    WriteBytes(tree.File("libexec/own/helper"), {2});

    EXPECT_EQ(ProgramFile(tree.File("bin"), "helper", "../libexec/own"), tree.File("bin/helper"));
}

TEST(ProgramFiles, AFileOfAnInstalledTreeIsFoundWhereTheTreeIs) {
    const TemporaryFolder tree;
    fs::create_directories(tree.File("bin"));
    fs::create_directories(tree.File("libexec/own"));
    WriteBytes(tree.File("libexec/own/helper"), {2});

    const std::string found = ProgramFile(tree.File("bin"), "helper", "../libexec/own");

    EXPECT_EQ(fs::weakly_canonical(found), fs::weakly_canonical(tree.File("libexec/own/helper")));
}

TEST(ProgramFiles, AMissingFileIsExpectedBesideTheProgram) {
    const TemporaryFolder tree;

    EXPECT_EQ(ProgramFile(tree.Path(), "helper", "elsewhere"), tree.File("helper"));
}

TEST(ProgramFiles, TheProgramsFolderIsThatOfItsFile) {
    const fs::path program = fs::read_symlink("/proc/self/exe");

    EXPECT_EQ(ProgramFolder(), program.parent_path().string());
}

}  // namespace kirto::test
