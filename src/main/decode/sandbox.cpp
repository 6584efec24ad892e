#include "main/decode/sandbox.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace kirto {

namespace {

// Sanitizers need more address space and other calls than the program does.
constexpr bool kIsSanitized = KIRTO_IS_SANITIZED;

constexpr rlim_t kOpenFiles = 64;

void Limit(__rlimit_resource resource, rlim_t value) {
    rlimit limit{};
    if (getrlimit(resource, &limit) != 0) return;
    if (limit.rlim_max != RLIM_INFINITY && limit.rlim_max < value) value = limit.rlim_max;
    limit = {value, value};
    setrlimit(resource, &limit);
}

// Bytes of address space that the process has now.
uint64 AddressSpace() {
    unsigned long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%lu", &pages) != 1) pages = 0;
        std::fclose(file);
    }
    return uint64{pages} * static_cast<uint64>(sysconf(_SC_PAGESIZE));
}

// What a program needs that computes, takes memory, and answers on descriptors that it has.
constexpr int kAllowed[] = {SCMP_SYS(read),
                            SCMP_SYS(readv),
                            SCMP_SYS(pread64),
                            SCMP_SYS(preadv),
                            SCMP_SYS(write),
                            SCMP_SYS(writev),
                            SCMP_SYS(pwrite64),
                            SCMP_SYS(lseek),
                            SCMP_SYS(close),
                            SCMP_SYS(fstat),
                            SCMP_SYS(fcntl),
                            SCMP_SYS(ftruncate),
                            SCMP_SYS(dup),
                            SCMP_SYS(recvmsg),
                            SCMP_SYS(sendmsg),
                            SCMP_SYS(poll),
                            SCMP_SYS(ppoll),
                            SCMP_SYS(eventfd2),
                            SCMP_SYS(memfd_create),
                            SCMP_SYS(brk),
                            SCMP_SYS(munmap),
                            SCMP_SYS(mremap),
                            SCMP_SYS(madvise),
                            SCMP_SYS(membarrier),
                            SCMP_SYS(futex),
                            SCMP_SYS(set_robust_list),
                            SCMP_SYS(rseq),
                            SCMP_SYS(sched_yield),
                            SCMP_SYS(sched_getaffinity),
                            SCMP_SYS(sched_getparam),
                            SCMP_SYS(sched_getscheduler),
                            SCMP_SYS(getpid),
                            SCMP_SYS(gettid),
                            SCMP_SYS(getuid),
                            SCMP_SYS(geteuid),
                            SCMP_SYS(getgid),
                            SCMP_SYS(getegid),
                            SCMP_SYS(getrandom),
                            SCMP_SYS(sysinfo),
                            SCMP_SYS(uname),
                            SCMP_SYS(getrusage),
                            SCMP_SYS(clock_gettime),
                            SCMP_SYS(clock_getres),
                            SCMP_SYS(clock_nanosleep),
                            SCMP_SYS(nanosleep),
                            SCMP_SYS(gettimeofday),
                            SCMP_SYS(rt_sigaction),
                            SCMP_SYS(rt_sigprocmask),
                            SCMP_SYS(rt_sigreturn),
                            SCMP_SYS(sigaltstack),
                            SCMP_SYS(restart_syscall),
                            SCMP_SYS(exit),
                            SCMP_SYS(exit_group)};

constexpr int kAllowedToReadFiles[] = {
    SCMP_SYS(access),  SCMP_SYS(faccessat),  SCMP_SYS(faccessat2), SCMP_SYS(stat),
    SCMP_SYS(lstat),   SCMP_SYS(newfstatat), SCMP_SYS(statx),      SCMP_SYS(statfs),
    SCMP_SYS(fstatfs), SCMP_SYS(getdents64), SCMP_SYS(readlink),   SCMP_SYS(readlinkat),
    SCMP_SYS(getcwd)};

// Conditions: a call's argument, counted from 0, has the value, whole or in the bits of the mask.
scmp_arg_cmp Equal(unsigned argument, scmp_datum_t value) {
    return {argument, SCMP_CMP_EQ, value, 0};
}
scmp_arg_cmp Masked(unsigned argument, scmp_datum_t mask, scmp_datum_t value) {
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

// Rules of the filter; once one could not be added, there is no filter.
class Filter {
  public:
    Filter() : context_(seccomp_init(SCMP_ACT_ERRNO(EPERM)), seccomp_release) {}

    // A call whose argument, masked, has the value; with no condition, whatever its arguments are.
    template <typename... Conditions>
    void Allow(int call, Conditions... conditions) {
        Add(SCMP_ACT_ALLOW, call, conditions...);
    }
    void Refuse(int call, uint16 error) { Add(SCMP_ACT_ERRNO(error), call); }

    // For all threads.
    bool Load() {
        if (!context_ || !good_) return false;
        if (seccomp_attr_set(context_.get(), SCMP_FLTATR_CTL_TSYNC, 1) != 0) return false;
        return seccomp_load(context_.get()) == 0;
    }

  private:
    template <typename... Conditions>
    void Add(uint32 action, int call, Conditions... conditions) {
        if (!context_) return;
        const int error =
            seccomp_rule_add(context_.get(), action, call, sizeof...(conditions), conditions...);
        // Calls that this kind of machine does not have need no rule.
        if (error != 0 && error != -EDOM) good_ = false;
    }

    std::unique_ptr<void, decltype(&seccomp_release)> context_;
    bool good_ = true;
};

// Threads, not processes. The newer call has its flags where no filter sees them; the older one is
// used in its place where that is missing.
void AllowThreads(Filter* filter) {
    filter->Allow(SCMP_SYS(clone), Masked(0, CLONE_THREAD, CLONE_THREAD));
    filter->Refuse(SCMP_SYS(clone3), ENOSYS);
    // The names of threads, and of memory.
    filter->Allow(SCMP_SYS(prctl), Equal(0, PR_SET_NAME));
    // Aborting is a signal to oneself.
    filter->Allow(SCMP_SYS(tgkill), Equal(0, static_cast<scmp_datum_t>(getpid())));
}

// What a descriptor is. The name that could be given beside it tells of a file, but opens none.
void AllowDescriptions(Filter* filter) {
    constexpr scmp_datum_t kOfDescriptor = AT_EMPTY_PATH;
    filter->Allow(SCMP_SYS(newfstatat), Masked(3, kOfDescriptor, kOfDescriptor));
    filter->Allow(SCMP_SYS(statx), Masked(2, kOfDescriptor, kOfDescriptor));
}

// No memory of data becomes code.
void AllowMemory(Filter* filter) {
    filter->Allow(SCMP_SYS(mmap), Masked(2, PROT_EXEC, 0));
    filter->Allow(SCMP_SYS(mprotect), Masked(2, PROT_EXEC, 0));
}

void AllowReadingFiles(Filter* filter) {
    for (const int call : kAllowedToReadFiles)
        filter->Allow(call);
    constexpr scmp_datum_t kChanges = O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND;
    filter->Allow(SCMP_SYS(openat), Masked(2, kChanges, O_RDONLY));
    filter->Allow(SCMP_SYS(open), Masked(1, kChanges, O_RDONLY));
}

}  // namespace

void LimitResources(uint64 memory) {
    if (!kIsSanitized) Limit(RLIMIT_AS, AddressSpace() + memory);
    Limit(RLIMIT_FSIZE, memory);
    Limit(RLIMIT_NOFILE, kOpenFiles);
    Limit(RLIMIT_CORE, 0);
}

bool ForbidSystemCalls(bool reads_files) {
    if (kIsSanitized) return false;
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return false;
    Filter filter;
    for (const int call : kAllowed)
        filter.Allow(call);
    AllowDescriptions(&filter);
    AllowThreads(&filter);
    AllowMemory(&filter);
    if (reads_files) AllowReadingFiles(&filter);
    return filter.Load();
}

}  // namespace kirto
