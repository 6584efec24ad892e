#include "resources/resource_file_path.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

// A folder "bin" with a program's surroundings.
struct ResourceFolders {
    ResourceFolders() {
        fs::create_directories(program_folder);
        fs::create_directories(folder.File("share/kirto"));
    }

    TemporaryFolder folder;
    std::string program_folder = folder.File("bin");
    std::string beside = folder.File("bin/kirto.rsrc");
    std::string installed = folder.File("share/kirto/kirto.rsrc");
};

}  // namespace

TEST(ResourceFilePath, IsBesideTheProgramWhereThatIs) {
    const ResourceFolders fixture;
    WriteBytes(fixture.beside, {1});
    WriteBytes(fixture.installed, {2});
    EXPECT_EQ(ResourceFilePath(fixture.program_folder), fixture.beside);
}

TEST(ResourceFilePath, IsWhereProgramsAreInstalledOtherwise) {
    const ResourceFolders fixture;
    WriteBytes(fixture.installed, {2});
    EXPECT_EQ(ReadBytes(ResourceFilePath(fixture.program_folder)), (std::vector<uint8>{2}));
}

TEST(ResourceFilePath, IsBesideTheProgramWhereThereIsNone) {
    const ResourceFolders fixture;
    EXPECT_EQ(ResourceFilePath(fixture.program_folder), fixture.beside);
}

TEST(ResourceFilePath, StartsFromTheRunningProgram) {
    const fs::path program = fs::read_symlink("/proc/self/exe");
    EXPECT_EQ(ResourceFilePath(), (program.parent_path() / "kirto.rsrc").string());
}

}  // namespace kirto::test
