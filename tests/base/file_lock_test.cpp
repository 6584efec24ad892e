#include "base/file_lock.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/test_support.h"

namespace kirto::test {

TEST(FileLock, HasOneHolder) {
    const TemporaryFolder folder;
    auto first = FileLock::TryTake(folder.File("lock"));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->Path(), folder.File("lock"));
    EXPECT_EQ(FileLock::TryTake(folder.File("lock")), nullptr);
    EXPECT_NE(FileLock::TryTake(folder.File("other")), nullptr);

    first.reset();

    EXPECT_NE(FileLock::TryTake(folder.File("lock")), nullptr);
}

TEST(FileLock, IsGivenBackWhenItsProcessIsKilled) {
    const TemporaryFolder folder;
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) {
        const auto lock = FileLock::TryTake(folder.File("lock"));
        const char taken = lock ? 'y' : 'n';
        [[maybe_unused]] const ssize_t ignored = write(ready[1], &taken, 1);
        pause();
        _exit(0);
    }
    char taken = 0;
    ASSERT_EQ(read(ready[0], &taken, 1), 1);
    EXPECT_EQ(taken, 'y');
    EXPECT_EQ(FileLock::TryTake(folder.File("lock")), nullptr);

    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);

    EXPECT_NE(FileLock::TryTake(folder.File("lock")), nullptr);
    close(ready[0]);
    close(ready[1]);
}

TEST(FileLock, RemovesItsFile) {
    const TemporaryFolder folder;
    const auto lock = FileLock::TryTake(folder.File("lock"));
    ASSERT_NE(lock, nullptr);
    EXPECT_TRUE(std::filesystem::exists(folder.File("lock")));

    lock->RemoveFile();

    EXPECT_FALSE(std::filesystem::exists(folder.File("lock")));
}

TEST(FileLock, IsNotTakenWhereNoFileCanBeMade) {
    const TemporaryFolder folder;
    EXPECT_EQ(FileLock::TryTake(folder.File("missing/lock")), nullptr);
    std::filesystem::create_symlink(folder.File("elsewhere"), folder.File("link"));
    EXPECT_EQ(FileLock::TryTake(folder.File("link")), nullptr);
    EXPECT_FALSE(std::filesystem::exists(folder.File("elsewhere")));
}

}  // namespace kirto::test
