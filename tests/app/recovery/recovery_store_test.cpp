#include "app/recovery/recovery_store.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "formats/recovery/recovery_file_writer.h"
#include "support/environment.h"
#include "support/full_disk.h"
#include "support/same_animation.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr int64 kDay = 24 * 60 * 60;

int64 Seconds() {
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

DocumentState StateNamed(const std::string& name) {
    Animation animation;
    Frame frame("frame", 2, 1);
    frame.bitmap = FramePictureOf(2, 1, {0xff102030, 0xff405060});
    InsertFrame(animation, 0, std::make_shared<const Frame>(std::move(frame)));
    DocumentState state;
    state.animation = std::make_shared<const Animation>(std::move(animation));
    state.file_name = name;
    state.modified = true;
    return state;
}

// Leaves a document as an editor does that was killed, which started so many microseconds after
// 1970. Its path.
std::string Leave(const std::string& folder, int64 start, const std::string& name) {
    RecoveryStore store(folder, start);
    EXPECT_EQ(store.Write(StateNamed(name)), B_OK);
    return store.OwnPath();
}

std::vector<std::string> NamesOf(const std::vector<RecoveryStore::Left>& left) {
    std::vector<std::string> names;
    for (const RecoveryStore::Left& each : left)
        names.push_back(each.head.file_name);
    return names;
}

std::vector<std::string> FilesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    return names;
}

void SetAge(const std::string& path, int64 seconds) {
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::seconds(seconds));
}

TEST(RecoveryStore, StandsInTheFolderForState) {
    const ScopedEnvironment state("XDG_STATE_HOME", "/tmp/ann/state");
    EXPECT_EQ(RecoveryStore::DefaultFolder(), "/tmp/ann/state/kirto/recovery");
}

TEST(RecoveryStore, MakesItsFolderAndNamesItsFileByProcessAndStart) {
    const TemporaryFolder home;
    const std::string folder = home.File("state/kirto/recovery");
    RecoveryStore store(folder, 123456);

    EXPECT_EQ(store.InitCheck(), B_OK);
    EXPECT_EQ(store.OwnPath(), folder + "/" + std::to_string(getpid()) + "-123456.recovery");
    EXPECT_EQ(store.Write(StateNamed("one")), B_OK);
    struct stat info {};
    ASSERT_EQ(stat(store.OwnPath().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    ASSERT_EQ(stat(folder.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0700u);
}

TEST(RecoveryStore, TakesAnotherNameWhereItsOwnIsTaken) {
    const TemporaryFolder folder;
    const RecoveryStore first(folder.Path(), 1);
    const RecoveryStore second(folder.Path(), 1);

    EXPECT_EQ(second.InitCheck(), B_OK);
    EXPECT_NE(first.OwnPath(), second.OwnPath());
}

TEST(RecoveryStore, ListsWhatDeadEditorsLeft) {
    const TemporaryFolder folder;
    const std::string path = Leave(folder.Path(), 1, "birds.gif");
    RecoveryStore store(folder.Path(), 2);

    const auto left = store.List(Seconds());

    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0].path, path);
    EXPECT_EQ(left[0].head.file_name, "birds.gif");
    EXPECT_EQ(left[0].head.frame_count, 1);
    EXPECT_NEAR(static_cast<double>(left[0].head.written), static_cast<double>(Seconds()), 3600);
    EXPECT_THAT(NamesOf(store.List(Seconds())), ElementsAre("birds.gif"));
}

TEST(RecoveryStore, LeavesTheFilesOfRunningEditorsAlone) {
    const TemporaryFolder folder;
    RecoveryStore running(folder.Path(), 1);
    running.Write(StateNamed("running.gif"));
    SetAge(running.OwnPath(), 100 * kDay);
    RecoveryStore store(folder.Path(), 2);
    store.Write(StateNamed("own.gif"));

    EXPECT_THAT(store.List(Seconds()), IsEmpty());

    EXPECT_TRUE(fs::exists(running.OwnPath()));
    EXPECT_TRUE(fs::exists(store.OwnPath()));
}

TEST(RecoveryStore, ListsWhatAKilledProcessLeft) {
    const TemporaryFolder folder;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        RecoveryStore killed(folder.Path(), 1);
        const char written = killed.Write(StateNamed("killed.gif")) == B_OK ? 'y' : 'n';
        [[maybe_unused]] const ssize_t ignored = write(ready[1], &written, 1);
        pause();
        _exit(0);
    }
    char written = 0;
    ASSERT_EQ(read(ready[0], &written, 1), 1);
    EXPECT_EQ(written, 'y');
    RecoveryStore store(folder.Path(), 2);
    EXPECT_THAT(store.List(Seconds()), IsEmpty());

    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);

    EXPECT_THAT(NamesOf(store.List(Seconds())), ElementsAre("killed.gif"));
    close(ready[0]);
    close(ready[1]);
}

TEST(RecoveryStore, WhatOneEditorListsNoOtherOneDoes) {
    const TemporaryFolder folder;
    Leave(folder.Path(), 1, "birds.gif");
    RecoveryStore second(folder.Path(), 3);
    {
        RecoveryStore first(folder.Path(), 2);
        EXPECT_EQ(first.List(Seconds()).size(), 1u);
        EXPECT_THAT(second.List(Seconds()), IsEmpty());
    }
    EXPECT_EQ(second.List(Seconds()).size(), 1u);
}

TEST(RecoveryStore, ReadsAListedDocumentAndKeepsItUntilItIsDiscarded) {
    const TemporaryFolder folder;
    const std::string path = Leave(folder.Path(), 1, "birds.gif");
    RecoveryStore store(folder.Path(), 2);
    EXPECT_EQ(store.Read(path, nullptr).status, B_NOT_ALLOWED);
    store.List(Seconds());

    const auto outcome = store.Read(path, std::make_shared<PixelBudget>());

    ASSERT_TRUE(outcome.document) << outcome.reason;
    EXPECT_EQ(outcome.status, B_OK);
    EXPECT_TRUE(SameAnimation(outcome.document->animation, *StateNamed("").animation));
    EXPECT_TRUE(fs::exists(path));
    store.Discard(path);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_THAT(store.List(Seconds()), IsEmpty());
}

TEST(RecoveryStore, DiscardsOnlyWhatItHasListed) {
    const TemporaryFolder folder;
    const std::string path = Leave(folder.Path(), 1, "birds.gif");
    RecoveryStore store(folder.Path(), 2);

    store.Discard(path);

    EXPECT_TRUE(fs::exists(path));
}

TEST(RecoveryStore, SetsAsideAFileWithADamagedHead) {
    const DebugRecorder lines;
    const TemporaryFolder folder;
    const std::string path = Leave(folder.Path(), 1, "birds.gif");
    WriteBytes(path, {1, 2, 3});
    RecoveryStore store(folder.Path(), 2);

    EXPECT_THAT(store.List(Seconds()), IsEmpty());

    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(ReadBytes(path + ".damaged"), (std::vector<uint8>{1, 2, 3}));
    EXPECT_EQ(lines.Text(),
              "RecoveryStore::SetAside() - " + path + " is damaged (the file is cut off)\n");
}

TEST(RecoveryStore, SetsAsideAFileThatIsDamagedFurtherOnWhenItIsRead) {
    const DebugRecorder lines;
    const TemporaryFolder folder;
    const std::string path = Leave(folder.Path(), 1, "birds.gif");
    std::vector<uint8> bytes = ReadBytes(path);
    bytes.pop_back();
    WriteBytes(path, bytes);
    RecoveryStore store(folder.Path(), 2);
    EXPECT_EQ(store.List(Seconds()).size(), 1u);

    const auto outcome = store.Read(path, nullptr);

    EXPECT_FALSE(outcome.document);
    EXPECT_EQ(outcome.status, B_BAD_DATA);
    EXPECT_EQ(outcome.reason, "the file is cut off");
    EXPECT_TRUE(fs::exists(path + ".damaged"));
    EXPECT_THAT(store.List(Seconds()), IsEmpty());
}

TEST(RecoveryStore, KeepsAFileForWhichThereIsNoMemory) {
    const TemporaryFolder folder;
    const std::string path = Leave(folder.Path(), 1, "birds.gif");
    RecoveryStore store(folder.Path(), 2);
    store.List(Seconds());

    EXPECT_EQ(store.Read(path, std::make_shared<PixelBudget>(1)).status, B_NO_MEMORY);

    EXPECT_TRUE(store.Read(path, std::make_shared<PixelBudget>()).document);
}

TEST(RecoveryStore, RemovesWhatIsOlderThan30Days) {
    const TemporaryFolder folder;
    const std::string old = Leave(folder.Path(), 1, "old.gif");
    const std::string recent = Leave(folder.Path(), 2, "recent.gif");
    SetAge(old, 30 * kDay + 60);
    SetAge(recent, 30 * kDay - 60);
    for (const char* name : {"3-3.recovery.damaged", ".kirto-0123456789abcdef", "notes"}) {
        WriteBytes(folder.File(name), {1});
        SetAge(folder.File(name), 31 * kDay);
    }
    WriteBytes(folder.File("4-4.recovery.damaged"), {1});
    RecoveryStore store(folder.Path(), 5);

    EXPECT_THAT(NamesOf(store.List(Seconds())), ElementsAre("recent.gif"));

    const std::string own = std::to_string(getpid());
    EXPECT_THAT(FilesIn(folder.Path()),
                UnorderedElementsAre("4-4.recovery.damaged", own + "-2.recovery",
                                     own + "-2.recovery.lock", own + "-5.recovery.lock", "notes"));
}

TEST(RecoveryStore, RemovesLocksThatNobodyHolds) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("1-1.recovery.lock"), {});
    RecoveryStore running(folder.Path(), 1);
    RecoveryStore store(folder.Path(), 2);

    store.List(Seconds());

    EXPECT_FALSE(fs::exists(folder.File("1-1.recovery.lock")));
    EXPECT_TRUE(fs::exists(running.OwnPath() + ".lock"));
    EXPECT_TRUE(fs::exists(store.OwnPath() + ".lock"));
}

TEST(RecoveryStore, ACleanEndLeavesNothing) {
    const TemporaryFolder folder;
    {
        RecoveryStore store(folder.Path(), 1);
        store.Write(StateNamed("birds.gif"));
        store.Remove();
    }
    EXPECT_THAT(FilesIn(folder.Path()), IsEmpty());
}

TEST(RecoveryStore, AFailedWriteKeepsTheFileBeforeIt) {
    const TemporaryFolder folder;
    RecoveryStore store(folder.Path(), 1);
    ASSERT_EQ(store.Write(StateNamed("before")), B_OK);
    const std::vector<uint8> before = ReadBytes(store.OwnPath());
    {
        const FullDisk full;
        EXPECT_EQ(store.Write(StateNamed("after")), B_IO_ERROR);
    }
    EXPECT_EQ(ReadBytes(store.OwnPath()), before);
}

TEST(RecoveryStore, WritesNothingWhereItHasNoLock) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("file"), {});
    RecoveryStore store(folder.File("file/recovery"), 1);

    EXPECT_EQ(store.InitCheck(), B_NOT_ALLOWED);
    EXPECT_EQ(store.Write(StateNamed("one")), B_NOT_ALLOWED);
    EXPECT_THAT(store.List(Seconds()), IsEmpty());
}

TEST(RecoveryStore, ListsTheNewestFirst) {
    const TemporaryFolder folder;
    const auto write = [&folder](const char* name, int64 written) {
        const auto file = BFile::CreatePrivate(folder.File(std::string(name) + ".recovery"));
        const RecoveryFileWriter writer(*file, StateNamed(name), written);
        EXPECT_EQ(file->Commit(), B_OK);
    };
    write("a", 200);
    write("b", 300);
    write("c", 100);
    RecoveryStore store(folder.Path(), 1);

    EXPECT_THAT(NamesOf(store.List(Seconds())), ElementsAre("b", "a", "c"));
}

}  // namespace
}  // namespace kirto::test
