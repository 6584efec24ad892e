#include "main/decode/sandbox.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace kirto::test {

namespace {

// Whether the function is true in a process that has shut itself in before.
bool HoldsInside(bool reads_files, const std::function<bool()>& function) {
    const pid_t child = fork();
    if (child == 0) {
        LimitResources(uint64{256} << 20);
        _exit(ForbidSystemCalls(reads_files) && function() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool Refused(long result) {
    return result == -1 && errno == EPERM;
}

class SandboxTest : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        if (KIRTO_IS_SANITIZED) GTEST_SKIP() << "sanitizers make calls of their own";
    }
};

TEST_P(SandboxTest, RefusesTheNetwork) {
    EXPECT_TRUE(HoldsInside(GetParam(), [] {
        return Refused(socket(AF_INET, SOCK_STREAM, 0)) && Refused(socket(AF_UNIX, SOCK_STREAM, 0));
    }));
}

TEST_P(SandboxTest, RefusesOtherProcesses) {
    EXPECT_TRUE(HoldsInside(GetParam(), [] {
        const bool no_fork = Refused(fork());
        const bool no_program = Refused(execl("/bin/true", "true", nullptr));
        return no_fork && no_program && Refused(kill(getppid(), 0));
    }));
}

TEST_P(SandboxTest, RefusesToChangeFiles) {
    EXPECT_TRUE(HoldsInside(GetParam(), [] {
        return Refused(open("/tmp/kirto-sandbox", O_WRONLY | O_CREAT, 0600)) &&
               Refused(open("/dev/null", O_RDWR)) && Refused(unlink("/tmp/kirto-sandbox")) &&
               Refused(mkdir("/tmp/kirto-sandbox", 0700)) &&
               Refused(rename("/tmp/kirto-sandbox", "/tmp/kirto-other"));
    }));
}

TEST_P(SandboxTest, RefusesMemoryThatIsCode) {
    EXPECT_TRUE(HoldsInside(GetParam(), [] {
        void* code = mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        const bool refused = code == MAP_FAILED && errno == EPERM;
        void* data =
            mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        return refused && data != MAP_FAILED &&
               Refused(mprotect(data, 4096, PROT_READ | PROT_EXEC));
    }));
}

TEST_P(SandboxTest, LeavesMemoryThreadsAndFilesInMemory) {
    EXPECT_TRUE(HoldsInside(GetParam(), [] {
        void* block = std::malloc(size_t{64} << 20);
        std::free(block);
        bool ran = false;
        std::thread([&ran] { ran = true; }).join();
        const int file = memfd_create("pixels", MFD_CLOEXEC);
        return block && ran && file >= 0 && ftruncate(file, 4096) == 0;
    }));
}

TEST_P(SandboxTest, RefusesMemoryAndFilesBeyondTheLimit) {
    EXPECT_TRUE(HoldsInside(GetParam(), [] {
        // What asks for less may use a few pages of its own beside it.
        void* block = mmap(nullptr, size_t{300} << 20, PROT_READ | PROT_WRITE,
                           MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        std::signal(SIGXFSZ, SIG_IGN);
        const int file = memfd_create("pixels", MFD_CLOEXEC);
        return block == MAP_FAILED && ftruncate(file, off_t{300} << 20) != 0;
    }));
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutFonts, SandboxTest, testing::Bool());

TEST(Sandbox, LetsNothingBeReadButWhereFontsAreNeeded) {
    if (KIRTO_IS_SANITIZED) GTEST_SKIP() << "sanitizers make calls of their own";
    const auto opens = [] { return open("/etc/passwd", O_RDONLY) >= 0; };

    EXPECT_FALSE(HoldsInside(false, opens));
    EXPECT_TRUE(HoldsInside(true, opens));
}

}  // namespace

}  // namespace kirto::test
