#include "torture/watched_run.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kirto::test {

namespace {

double SecondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

[[noreturn]] void Become(const std::vector<std::string>& command, WatchedRun::Limits limits,
                         int errors) {
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDIN_FILENO);
    dup2(nowhere, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    // Of a processor, as a machine that is busy with other things must not matter.
    const rlimit time{limits.seconds, limits.seconds};
    if (limits.seconds > 0) setrlimit(RLIMIT_CPU, &time);
    // One that waits for ever takes none; the new program keeps the alarm.
    alarm(limits.seconds * 10);
    const rlimit space{limits.address_space, limits.address_space};
    if (limits.address_space > 0) setrlimit(RLIMIT_AS, &space);
    execv(arguments[0], arguments.data());
    _exit(127);
}

std::string ReadAll(int file) {
    std::string text;
    char part[4096];
    for (ssize_t size = 0; (size = read(file, part, sizeof part)) > 0;) {
        text.append(part, static_cast<size_t>(size));
    }
    return text;
}

}  // namespace

WatchedRun WatchedRun::Of(const std::vector<std::string>& command, Limits limits) {
    WatchedRun run;
    int errors[2];
    if (pipe2(errors, O_CLOEXEC) != 0) return run;
    const pid_t child = fork();
    if (child == 0) Become(command, limits, errors[1]);
    close(errors[1]);
    run.message = ReadAll(errors[0]);
    close(errors[0]);

    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child) return run;
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.seconds = SecondsOf(used.ru_utime) + SecondsOf(used.ru_stime);
    run.kibibytes = used.ru_maxrss;
    return run;
}

}  // namespace kirto::test
