#include "kit/file.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "support/ordinary_user.h"
#include "support/test_support.h"

namespace kirto::test {

using ::testing::UnorderedElementsAre;

namespace {

std::vector<uint8> BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

std::string TextAt(const std::string& path) {
    const std::vector<uint8> bytes = ReadBytes(path);
    return {bytes.begin(), bytes.end()};
}

void WriteText(const std::string& path, std::string_view text) {
    WriteBytes(path, BytesOf(text));
}

std::vector<std::string> NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

mode_t PermissionsOf(const std::string& path) {
    struct stat info = {};
    stat(path.c_str(), &info);
    return info.st_mode & 07777;
}

// While alive, files that this process writes can't grow past a size: writes fail as on a full
// disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        previous_handler_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {bytes, previous_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previous_handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit previous_ = {};
    sighandler_t previous_handler_ = SIG_DFL;
};

// While alive, the process's file mode creation mask.
class Umask {
  public:
    explicit Umask(mode_t mask) : previous_(umask(mask)) {}
    ~Umask() { umask(previous_); }
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;

  private:
    mode_t previous_;
};

// A folder with the file "target" of the text "old".
struct ReplacingFixture {
    ReplacingFixture() { WriteText(path, "old"); }

    TemporaryFolder folder;
    std::string path = folder.File("target");
};

}  // namespace

TEST(BFile, SaysSoWhenThereIsNoMemoryForItsReadBuffer) {
    const TemporaryFolder folder;
    WriteText(folder.File("file"), "text");
    BFile file(folder.File("file"), B_READ_ONLY);
    char text[4] = {};
    {
        const AllocationFault fault(1);
        EXPECT_EQ(file.Read(text, sizeof(text)), B_NO_MEMORY);
    }

    EXPECT_TRUE(file.ReadExactly(text, sizeof(text)));
    EXPECT_EQ(std::string(text, sizeof(text)), "text");
}

TEST(BFile, ReadsAFile) {
    const ReplacingFixture fixture;
    BFile file(fixture.path, B_READ_ONLY);
    ASSERT_EQ(file.InitCheck(), B_OK);
    EXPECT_EQ(file.Size(), 3);
    char bytes[8] = {};
    EXPECT_EQ(file.Read(bytes, sizeof(bytes)), 3);
    EXPECT_STREQ(bytes, "old");
    EXPECT_EQ(file.Position(), 3);
    EXPECT_EQ(file.Read(bytes, sizeof(bytes)), 0);
}

TEST(BFile, ReadsFilesLargerThanItsBuffer) {
    const TemporaryFolder folder;
    std::vector<uint8> bytes(200000);
    for (size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8>(i * 7 + i / 256);
    WriteBytes(folder.File("large"), bytes);
    BFile file(folder.File("large"), B_READ_ONLY);
    std::vector<uint8> read(bytes.size());
    for (size_t done = 0; done < read.size(); done += 1000) {
        ASSERT_TRUE(file.ReadExactly(read.data() + done, 1000));
    }
    EXPECT_EQ(read, bytes);
    EXPECT_FALSE(file.ReadExactly(read.data(), 1));
}

TEST(BFile, ReadsExactlyOrSaysThatItDidNot) {
    const ReplacingFixture fixture;
    BFile file(fixture.path, B_READ_ONLY);
    char bytes[4] = {};
    EXPECT_TRUE(file.ReadExactly(bytes, 2));
    EXPECT_FALSE(file.ReadExactly(bytes, 2));
    EXPECT_TRUE(file.ReadExactly(nullptr, 0));
}

TEST(BFile, SeeksFromAllThreePlaces) {
    const TemporaryFolder folder;
    WriteText(folder.File("digits"), "0123456789");
    BFile file(folder.File("digits"), B_READ_ONLY);
    char byte = 0;
    EXPECT_EQ(file.Seek(4, SEEK_FROM_START), 4);
    file.Read(&byte, 1);
    EXPECT_EQ(byte, '4');
    EXPECT_EQ(file.Seek(-3, SEEK_FROM_CURRENT), 2);
    file.Read(&byte, 1);
    EXPECT_EQ(byte, '2');
    EXPECT_EQ(file.Seek(-1, SEEK_FROM_END), 9);
    file.Read(&byte, 1);
    EXPECT_EQ(byte, '9');
}

TEST(BFile, SeeksPastTheEndButNotBeforeTheStart) {
    const ReplacingFixture fixture;
    BFile file(fixture.path, B_READ_ONLY);
    char byte = 0;
    EXPECT_EQ(file.Seek(1, SEEK_FROM_START), 1);
    EXPECT_EQ(file.Seek(-2, SEEK_FROM_CURRENT), B_BAD_VALUE);
    EXPECT_EQ(file.Position(), 1);
    EXPECT_EQ(file.Seek(100, SEEK_FROM_CURRENT), 101);
    EXPECT_EQ(file.Read(&byte, 1), 0);
    EXPECT_EQ(file.Seek(std::numeric_limits<int64>::max(), SEEK_FROM_CURRENT), B_BAD_VALUE);
    EXPECT_EQ(file.Seek(std::numeric_limits<int64>::max(), SEEK_FROM_START),
              std::numeric_limits<int64>::max());
    EXPECT_EQ(file.Read(&byte, 1), 0);
    EXPECT_EQ(file.Seek(0, SEEK_FROM_START), 0);
    EXPECT_EQ(file.Read(&byte, 1), 1);
    EXPECT_EQ(byte, 'o');
}

TEST(BFile, AFileThatShrinksGivesAShortRead) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("shrinking"), std::vector<uint8>(100000));
    BFile file(folder.File("shrinking"), B_READ_ONLY);
    std::vector<uint8> bytes(100000);
    EXPECT_TRUE(file.ReadExactly(bytes.data(), 10));
    std::filesystem::resize_file(folder.File("shrinking"), 5);
    EXPECT_LT(file.Read(bytes.data(), bytes.size()), 100000 - 10);
}

TEST(BFile, RefusesWhatIsNotThere) {
    const TemporaryFolder folder;
    BFile file(folder.File("absent"), B_READ_ONLY);
    EXPECT_EQ(file.InitCheck(), B_ENTRY_NOT_FOUND);
    char byte = 0;
    EXPECT_EQ(file.Read(&byte, 1), B_ENTRY_NOT_FOUND);
    EXPECT_EQ(file.Write(&byte, 1), B_ENTRY_NOT_FOUND);
    EXPECT_EQ(file.Commit(), B_ENTRY_NOT_FOUND);
}

TEST(BFile, ReadsOnlyRegularFiles) {
    const TemporaryFolder folder;
    mkfifo(folder.File("pipe").c_str(), 0600);
    EXPECT_EQ(BFile(folder.File("pipe"), B_READ_ONLY).InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(BFile(folder.Path(), B_READ_ONLY).InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(BFile("/dev/null", B_READ_ONLY).InitCheck(), B_NOT_ALLOWED);
}

TEST(BFile, RefusesPathsThatAreTooLong) {
    const TemporaryFolder folder;
    const std::string path = folder.File(std::string(1000, 'x'));
    EXPECT_EQ(BFile(path, B_READ_ONLY).InitCheck(), B_BAD_VALUE);
    EXPECT_EQ(BFile::CreateReplacing(path)->InitCheck(), B_BAD_VALUE);
    EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre());
}

TEST(BFile, AFileOpenedForReadingIsNotWritten) {
    const ReplacingFixture fixture;
    BFile file(fixture.path, B_READ_ONLY);
    EXPECT_EQ(file.Commit(), B_NOT_ALLOWED);
    EXPECT_EQ(file.Write("new", 3), B_NOT_ALLOWED);
    EXPECT_EQ(file.WriteStatus(), B_NOT_ALLOWED);
    EXPECT_EQ(file.Commit(), B_NOT_ALLOWED);
    char byte = 0;
    EXPECT_EQ(file.Read(&byte, 1), 1);
    EXPECT_EQ(TextAt(fixture.path), "old");
}

TEST(BFile, ReplacesItsTargetOnCommitOnly) {
    const ReplacingFixture fixture;
    const auto file = BFile::CreateReplacing(fixture.path);
    ASSERT_EQ(file->InitCheck(), B_OK);
    EXPECT_EQ(file->Write("new text", 8), 8);
    EXPECT_EQ(TextAt(fixture.path), "old");
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(fixture.path), "new text");
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, CreatesATargetThatIsNotThere) {
    const TemporaryFolder folder;
    const auto file = BFile::CreateReplacing(folder.File("new"));
    file->Write("text", 4);
    EXPECT_FALSE(std::filesystem::exists(folder.File("new")));
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(folder.File("new")), "text");
}

TEST(BFile, LeavesNoTraceWithoutCommit) {
    const ReplacingFixture fixture;
    {
        const auto file = BFile::CreateReplacing(fixture.path);
        file->Write("new", 3);
        EXPECT_EQ(TextAt(fixture.path), "old");
    }
    EXPECT_EQ(TextAt(fixture.path), "old");
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, IsCommittedOnce) {
    const ReplacingFixture fixture;
    const auto file = BFile::CreateReplacing(fixture.path);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(fixture.path), "");
    EXPECT_EQ(file->Commit(), B_NOT_ALLOWED);
    EXPECT_EQ(file->Write("late", 4), B_NOT_ALLOWED);
    EXPECT_EQ(TextAt(fixture.path), "");
}

TEST(BFile, WritesBareNamesToTheCurrentFolder) {
    const TemporaryFolder folder;
    const std::filesystem::path previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    const auto file = BFile::CreateReplacing("bare");
    // The place is settled when the file is made.
    std::filesystem::current_path(previous);
    file->Write("text", 4);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(folder.File("bare")), "text");
    EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre("bare"));
}

TEST(BFile, WritesFilesLargerThanItsBuffer) {
    const TemporaryFolder folder;
    std::vector<uint8> bytes(300000);
    for (size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8>(i * 5 + i / 256);
    const auto file = BFile::CreateReplacing(folder.File("large"));
    for (size_t done = 0; done < 100000; done += 1000)
        file->Write(bytes.data() + done, 1000);
    EXPECT_EQ(file->Size(), 100000);
    file->Write(bytes.data() + 100000, 200000);
    EXPECT_EQ(file->Size(), 300000);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(ReadBytes(folder.File("large")), bytes);
}

TEST(BFile, WritesAfterASeekOverWhatIsThere) {
    const TemporaryFolder folder;
    const auto file = BFile::CreateReplacing(folder.File("patched"));
    file->Write("0123456789", 10);
    file->Seek(2, SEEK_FROM_START);
    file->Write("ab", 2);
    file->Seek(0, SEEK_FROM_END);
    file->Write("!", 1);
    EXPECT_EQ(file->Size(), 11);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(folder.File("patched")), "01ab456789!");
}

TEST(BFile, PatchesWhatHasLeftItsBuffer) {
    const TemporaryFolder folder;
    std::vector<uint8> bytes(150000, 'x');
    const auto file = BFile::CreateReplacing(folder.File("patched"));
    file->Write(bytes.data(), bytes.size());
    file->Seek(10, SEEK_FROM_START);
    file->Write("ab", 2);
    EXPECT_EQ(file->Commit(), B_OK);
    bytes[10] = 'a';
    bytes[11] = 'b';
    EXPECT_EQ(ReadBytes(folder.File("patched")), bytes);
}

TEST(BFile, FillsAGapWithZeros) {
    const TemporaryFolder folder;
    const auto file = BFile::CreateReplacing(folder.File("gap"));
    file->Write("a", 1);
    file->Seek(4, SEEK_FROM_START);
    file->Write("b", 1);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(ReadBytes(folder.File("gap")), (std::vector<uint8>{'a', 0, 0, 0, 'b'}));
}

TEST(BFile, SeekingAloneDoesNotEnlargeAFile) {
    const TemporaryFolder folder;
    const auto file = BFile::CreateReplacing(folder.File("same"));
    file->Write("a", 1);
    file->Seek(100, SEEK_FROM_START);
    EXPECT_EQ(file->Write("", 0), 0);
    EXPECT_EQ(file->Size(), 1);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(folder.File("same")), "a");
}

TEST(BFile, ReadsBackWhatItWrites) {
    const TemporaryFolder folder;
    const auto file = BFile::CreateReplacing(folder.File("both"));
    file->Write("0123456789", 10);
    char bytes[3] = {};
    file->Seek(4, SEEK_FROM_START);
    EXPECT_EQ(file->Read(bytes, 2), 2);
    EXPECT_STREQ(bytes, "45");
    EXPECT_EQ(file->Read(nullptr, 0), 0);
    file->Seek(100, SEEK_FROM_START);
    EXPECT_EQ(file->Read(bytes, 2), 0);
    file->Seek(8, SEEK_FROM_START);
    EXPECT_EQ(file->Read(bytes, 3), 2);
    file->Write("!", 1);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(folder.File("both")), "0123456789!");
}

TEST(BFile, KeepsThePermissionsOfItsTarget) {
    const Umask mask(022);
    for (const mode_t mode : {mode_t{0600}, mode_t{0664}, mode_t{0755}}) {
        const ReplacingFixture fixture;
        chmod(fixture.path.c_str(), mode);
        EXPECT_EQ(BFile::CreateReplacing(fixture.path)->Commit(), B_OK);
        EXPECT_EQ(PermissionsOf(fixture.path), mode);
    }
}

TEST(BFile, KeepsTheExtendedAttributesOfItsTarget) {
    const ReplacingFixture fixture;
    if (setxattr(fixture.path.c_str(), "user.comment", "kept", 4, 0) != 0) {
        GTEST_SKIP() << "no extended attributes in the temporary folder";
    }
    setxattr(fixture.path.c_str(), "user.mime_type", "text/plain", 10, 0);

    EXPECT_EQ(BFile::CreateReplacing(fixture.path)->Commit(), B_OK);

    char value[8] = {};
    EXPECT_EQ(getxattr(fixture.path.c_str(), "user.comment", value, sizeof(value)), 4);
    EXPECT_STREQ(value, "kept");
    EXPECT_EQ(getxattr(fixture.path.c_str(), "user.mime_type", value, sizeof(value)), -1);
}

TEST(BFile, KeepsTheAccessListOfItsTarget) {
    constexpr const char* kAccessList = "system.posix_acl_access";
    // Version 2; owner rw, user 12345 r, group r, mask r, others none, as tag, rights and id.
    const std::vector<uint8> list = {2,  0, 0, 0,                          //
                                     1,  0, 6, 0, 0xFF, 0xFF, 0xFF, 0xFF,  //
                                     2,  0, 4, 0, 0x39, 0x30, 0,    0,     //
                                     4,  0, 4, 0, 0xFF, 0xFF, 0xFF, 0xFF,  //
                                     16, 0, 4, 0, 0xFF, 0xFF, 0xFF, 0xFF,  //
                                     32, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF};
    const ReplacingFixture fixture;
    if (setxattr(fixture.path.c_str(), kAccessList, list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "no access lists in the temporary folder";
    }

    EXPECT_EQ(BFile::CreateReplacing(fixture.path)->Commit(), B_OK);

    std::vector<uint8> kept(list.size());
    EXPECT_EQ(getxattr(fixture.path.c_str(), kAccessList, kept.data(), kept.size()),
              static_cast<ssize_t>(list.size()));
    EXPECT_EQ(kept, list);
}

TEST(BFile, DoesNotHandDownTheRightsOfAProgram) {
    const ReplacingFixture fixture;
    chmod(fixture.path.c_str(), 04755);
    EXPECT_EQ(BFile::CreateReplacing(fixture.path)->Commit(), B_OK);
    EXPECT_EQ(PermissionsOf(fixture.path), mode_t{0755});
}

TEST(BFile, GivesNewFilesTheDefaultPermissions) {
    const TemporaryFolder folder;
    const Umask mask(027);
    EXPECT_EQ(BFile::CreateReplacing(folder.File("new"))->Commit(), B_OK);
    EXPECT_EQ(PermissionsOf(folder.File("new")), mode_t{0640});
}

TEST(BFile, IsPrivateWhileItReplacesAPrivateFile) {
    const ReplacingFixture fixture;
    chmod(fixture.path.c_str(), 0600);
    const auto file = BFile::CreateReplacing(fixture.path);
    for (const std::string& name : NamesIn(fixture.folder.Path())) {
        EXPECT_EQ(PermissionsOf(fixture.folder.File(name)), mode_t{0600}) << name;
    }
}

TEST(BFile, ReplacesWhatALinkLeadsToNotTheLink) {
    const ReplacingFixture fixture;
    std::filesystem::create_directory(fixture.folder.File("links"));
    std::filesystem::create_symlink(fixture.path, fixture.folder.File("links/absolute"));
    std::filesystem::create_symlink("absolute", fixture.folder.File("links/relative"));
    const auto file = BFile::CreateReplacing(fixture.folder.File("links/relative"));
    file->Write("new", 3);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(fixture.path), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(fixture.folder.File("links/relative")));
    EXPECT_TRUE(std::filesystem::is_symlink(fixture.folder.File("links/absolute")));
    EXPECT_THAT(NamesIn(fixture.folder.File("links")),
                UnorderedElementsAre("absolute", "relative"));
}

TEST(BFile, CreatesWhatADanglingLinkLeadsTo) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("new", folder.File("link"));
    const auto file = BFile::CreateReplacing(folder.File("link"));
    file->Write("text", 4);
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_EQ(TextAt(folder.File("new")), "text");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link")));
}

TEST(BFile, RefusesLinksThatRunInACircle) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.File("a"));
    std::filesystem::create_symlink("a", folder.File("b"));
    EXPECT_EQ(BFile(folder.File("a"), B_READ_ONLY).InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(BFile::CreateReplacing(folder.File("a"))->InitCheck(), B_NOT_ALLOWED);
}

TEST(BFile, ReplacesOnlyRegularFiles) {
    const TemporaryFolder folder;
    mkfifo(folder.File("pipe").c_str(), 0600);
    std::filesystem::create_directory(folder.File("folder"));
    for (const char* name : {"pipe", "folder", "folder/", "folder/.."}) {
        const auto file = BFile::CreateReplacing(folder.File(name));
        EXPECT_EQ(file->InitCheck(), B_NOT_ALLOWED) << name;
        EXPECT_EQ(file->Write("x", 1), B_NOT_ALLOWED) << name;
        EXPECT_EQ(file->Commit(), B_NOT_ALLOWED) << name;
    }
    EXPECT_TRUE(std::filesystem::is_fifo(folder.File("pipe")));
    EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre("pipe", "folder"));
    EXPECT_THAT(NamesIn(folder.File("folder")), UnorderedElementsAre());
}

TEST(BFile, RefusesTargetsInFoldersThatAreNotThere) {
    const ReplacingFixture fixture;
    EXPECT_EQ(BFile::CreateReplacing(fixture.folder.File("absent/file"))->InitCheck(),
              B_ENTRY_NOT_FOUND);
    EXPECT_EQ(BFile::CreateReplacing(fixture.path + "/file")->InitCheck(), B_ENTRY_NOT_FOUND);
    EXPECT_EQ(BFile::CreateReplacing("")->InitCheck(), B_ENTRY_NOT_FOUND);
}

TEST(BFile, RefusesATargetThatIsReadOnly) {
    const ReplacingFixture fixture;
    chmod(fixture.folder.Path().c_str(), 0777);
    chmod(fixture.path.c_str(), 0444);
    {
        const OrdinaryUser user;
        EXPECT_EQ(BFile::CreateReplacing(fixture.path)->InitCheck(), B_NOT_ALLOWED);
    }
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, RefusesAFolderThatIsReadOnly) {
    const ReplacingFixture fixture;
    chmod(fixture.path.c_str(), 0666);
    chmod(fixture.folder.Path().c_str(), 0555);
    {
        const OrdinaryUser user;
        EXPECT_EQ(BFile::CreateReplacing(fixture.path)->InitCheck(), B_NOT_ALLOWED);
        EXPECT_EQ(BFile::CreateReplacing(fixture.folder.File("new"))->InitCheck(), B_NOT_ALLOWED);
    }
    chmod(fixture.folder.Path().c_str(), 0755);
    EXPECT_EQ(TextAt(fixture.path), "old");
}

TEST(BFile, AWriteErrorKeepsTheOldFile) {
    const ReplacingFixture fixture;
    const auto file = BFile::CreateReplacing(fixture.path);
    {
        const FileSizeLimit limit(100000);
        const std::vector<uint8> bytes(150000);
        EXPECT_EQ(file->Write(bytes.data(), bytes.size()), B_IO_ERROR);
    }
    // The room that is there by now can't make up for the bytes that are missing.
    EXPECT_EQ(file->WriteStatus(), B_IO_ERROR);
    EXPECT_EQ(file->Write("x", 1), B_IO_ERROR);
    EXPECT_EQ(file->Commit(), B_IO_ERROR);
    EXPECT_EQ(file->Commit(), B_IO_ERROR);
    EXPECT_EQ(TextAt(fixture.path), "old");
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, AWriteErrorAtTheLastFlushKeepsTheOldFile) {
    const ReplacingFixture fixture;
    const auto file = BFile::CreateReplacing(fixture.path);
    {
        const FileSizeLimit limit(4);
        EXPECT_EQ(file->Write("0123456789", 10), 10);
        EXPECT_EQ(file->Commit(), B_IO_ERROR);
    }
    EXPECT_EQ(file->WriteStatus(), B_IO_ERROR);
    EXPECT_EQ(TextAt(fixture.path), "old");
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, AWriteErrorAtASeekOrReadIsRemembered) {
    const ReplacingFixture fixture;
    const auto file = BFile::CreateReplacing(fixture.path);
    {
        const FileSizeLimit limit(4);
        file->Write("0123456789", 10);
        file->Seek(1000, SEEK_FROM_START);
        char byte = 0;
        EXPECT_EQ(file->Read(&byte, 1), B_IO_ERROR);
    }
    EXPECT_EQ(file->WriteStatus(), B_IO_ERROR);
    const auto other = BFile::CreateReplacing(fixture.path);
    {
        const FileSizeLimit limit(4);
        other->Write("0123456789", 10);
        other->Seek(1000, SEEK_FROM_START);
        EXPECT_EQ(other->Write("x", 1), B_IO_ERROR);
    }
    EXPECT_EQ(other->Commit(), B_IO_ERROR);
    EXPECT_EQ(TextAt(fixture.path), "old");
}

TEST(BFile, FailsWhenItsFolderIsRemoved) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("doomed"));
    const auto file = BFile::CreateReplacing(folder.File("doomed/file"));
    file->Write("text", 4);
    std::filesystem::remove_all(folder.File("doomed"));
    EXPECT_EQ(file->Commit(), B_ENTRY_NOT_FOUND);
    EXPECT_FALSE(std::filesystem::exists(folder.File("doomed")));
}

TEST(BFile, FailsWhenAFolderTookItsTargetsPlace) {
    const ReplacingFixture fixture;
    const auto file = BFile::CreateReplacing(fixture.path);
    std::filesystem::remove(fixture.path);
    std::filesystem::create_directory(fixture.path);
    EXPECT_EQ(file->Commit(), B_NOT_ALLOWED);
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, FollowsAFolderThatIsRenamed) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.File("before"));
    const auto file = BFile::CreateReplacing(folder.File("before/file"));
    file->Write("text", 4);
    std::filesystem::rename(folder.File("before"), folder.File("after"));
    EXPECT_EQ(file->Commit(), B_OK);
    EXPECT_THAT(NamesIn(folder.File("after")), UnorderedElementsAre("file"));
}

TEST(BFile, APrivateFileIsForItsOwnerOnly) {
    const ReplacingFixture fixture;
    chmod(fixture.path.c_str(), 0666);
    const Umask mask(0);
    for (const std::string& path : {fixture.path, fixture.folder.File("new")}) {
        const auto file = BFile::CreatePrivate(path);
        file->Write("private", 7);
        EXPECT_EQ(file->Commit(), B_OK);
        EXPECT_EQ(TextAt(path), "private");
        EXPECT_EQ(PermissionsOf(path), mode_t{0600});
    }
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target", "new"));
}

TEST(BFile, APrivateFileReplacesALinkItself) {
    const ReplacingFixture fixture;
    for (const char* destination : {"target", "absent", "link"}) {
        std::filesystem::remove(fixture.folder.File("link"));
        std::filesystem::create_symlink(destination, fixture.folder.File("link"));
        const auto file = BFile::CreatePrivate(fixture.folder.File("link"));
        file->Write("private", 7);
        EXPECT_EQ(file->Commit(), B_OK);
        EXPECT_FALSE(std::filesystem::is_symlink(fixture.folder.File("link")));
        EXPECT_EQ(TextAt(fixture.folder.File("link")), "private");
    }
    EXPECT_EQ(TextAt(fixture.path), "old");
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target", "link"));
}

TEST(BFile, APrivateFileReplacesNothingElse) {
    const TemporaryFolder folder;
    mkfifo(folder.File("pipe").c_str(), 0600);
    EXPECT_EQ(BFile::CreatePrivate(folder.File("pipe"))->InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(BFile::CreatePrivate(folder.Path())->InitCheck(), B_NOT_ALLOWED);
    EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre("pipe"));
}

TEST(BFile, SeveralReplaceTheSameTargetOneAfterTheOther) {
    const ReplacingFixture fixture;
    const auto first = BFile::CreateReplacing(fixture.path);
    const auto second = BFile::CreateReplacing(fixture.path);
    first->Write("first", 5);
    second->Write("second", 6);
    EXPECT_EQ(second->Commit(), B_OK);
    EXPECT_EQ(first->Commit(), B_OK);
    EXPECT_EQ(TextAt(fixture.path), "first");
    EXPECT_THAT(NamesIn(fixture.folder.Path()), UnorderedElementsAre("target"));
}

TEST(BFile, SetsItsMimeTypeWhereTheFileSystemAllowsIt) {
    const TemporaryFolder folder;
    const auto file = BFile::CreateReplacing(folder.File("typed.gif"));
    file->SetMimeType("image/gif");
    EXPECT_EQ(file->Commit(), B_OK);
    char type[32] = {};
    const ssize_t size =
        getxattr(folder.File("typed.gif").c_str(), "user.mime_type", type, sizeof(type));
    if (size < 0) GTEST_SKIP() << "no extended attributes in the temporary folder";
    EXPECT_STREQ(type, "image/gif");
}

TEST(BFile, OnMemoryReadsAndWritesItsBytes) {
    const auto file = BFile::OnMemory(BytesOf("0123456789"));
    ASSERT_EQ(file->InitCheck(), B_OK);
    EXPECT_EQ(file->Size(), 10);
    char bytes[3] = {};
    EXPECT_EQ(file->Read(bytes, 2), 2);
    EXPECT_STREQ(bytes, "01");
    EXPECT_EQ(file->Write("ab", 2), 2);
    EXPECT_EQ(file->Seek(-1, SEEK_FROM_END), 9);
    EXPECT_EQ(file->Write("xyz", 3), 3);
    EXPECT_EQ(file->Memory(), BytesOf("01ab45678xyz"));
    EXPECT_EQ(file->Read(bytes, 1), 0);
}

TEST(BFile, OnMemoryFillsAGapWithZeros) {
    const auto file = BFile::OnMemory();
    EXPECT_EQ(file->Seek(3, SEEK_FROM_START), 3);
    EXPECT_EQ(file->Write("", 0), 0);
    EXPECT_EQ(file->Size(), 0);
    EXPECT_EQ(file->Write("b", 1), 1);
    EXPECT_EQ(file->Memory(), (std::vector<uint8>{0, 0, 0, 'b'}));
}

TEST(BFile, ThatCountsKnowsTheSizeOfWhatIsWrittenAndKeepsNothing) {
    const auto file = BFile::ThatCounts();
    const std::vector<uint8> bytes(1000);

    EXPECT_EQ(file->InitCheck(), B_OK);
    EXPECT_EQ(file->Write(bytes.data(), bytes.size()), 1000);
    EXPECT_EQ(file->Write(bytes.data(), 0), 0);
    EXPECT_EQ(file->Write(bytes.data(), 1), 1);
    EXPECT_EQ(file->Size(), 1001);
    EXPECT_EQ(file->Position(), 1001);
    EXPECT_TRUE(file->Memory().empty());

    file->Seek(5, SEEK_FROM_START);
    EXPECT_EQ(file->Write(bytes.data(), 10), 10);
    EXPECT_EQ(file->Size(), 1001);
    uint8 byte = 0;
    EXPECT_EQ(file->Read(&byte, 1), 0);
    EXPECT_EQ(file->WriteStatus(), B_OK);
    EXPECT_EQ(file->Commit(), B_NOT_ALLOWED);
}

TEST(BFile, OnMemoryGrowsToTwoGiBOnly) {
    const auto file = BFile::OnMemory(BytesOf("abc"));
    file->Seek(int64{1} << 31, SEEK_FROM_START);
    EXPECT_EQ(file->Write("x", 1), B_NO_MEMORY);
    file->Seek(0, SEEK_FROM_START);
    EXPECT_EQ(file->Write("x", 1), B_NO_MEMORY);
    EXPECT_EQ(file->Memory(), BytesOf("abc"));
}

TEST(BFile, OnMemoryRefusesPositionsPastItsLimit) {
    const auto file = BFile::OnMemory();
    file->Seek(std::numeric_limits<int64>::max(), SEEK_FROM_START);
    EXPECT_EQ(file->Write("x", 1), B_NO_MEMORY);
    EXPECT_EQ(file->WriteStatus(), B_NO_MEMORY);
}

TEST(BFile, OnMemoryHasNoPlaceToBeCommittedTo) {
    const auto file = BFile::OnMemory();
    file->SetMimeType("image/gif");
    EXPECT_EQ(file->Commit(), B_NOT_ALLOWED);
}

}  // namespace kirto::test
