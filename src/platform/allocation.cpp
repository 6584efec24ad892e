#include "platform/allocation.h"

#include <limits>
#include <sys/mman.h>
#include <unistd.h>

namespace kirto {

namespace {

thread_local int64 t_failing_call = 0;  // 0: no fault installed
thread_local int64 t_calls = 0;

// Blocks of this many bytes are pictures, written from end to end: in large pages that costs a
// fraction of the page faults.
constexpr size_t kLargeBlock = size_t{8} << 20;

void AdviseLargePages(void* block, size_t bytes) {
    if (!block || bytes < kLargeBlock) return;
    const uintptr_t page = static_cast<uintptr_t>(sysconf(_SC_PAGESIZE));
    const uintptr_t start = (reinterpret_cast<uintptr_t>(block) + page - 1) / page * page;
    const uintptr_t end = (reinterpret_cast<uintptr_t>(block) + bytes) / page * page;
    // Advice only: without it the block works all the same.
    madvise(reinterpret_cast<void*>(start), end - start, MADV_HUGEPAGE);
}

}  // namespace

bool AllocationShouldFail() {
    if (t_failing_call == 0) return false;
    return ++t_calls >= t_failing_call;
}

void* AllocateZeroed(size_t count, size_t size) {
    if (AllocationShouldFail()) return nullptr;
    // calloc checks this too, but instrumented ones end the program over it.
    if (size > 0 && count > std::numeric_limits<size_t>::max() / size) return nullptr;
    void* block = std::calloc(count, size);
    AdviseLargePages(block, count * size);
    return block;
}

AllocationFault::AllocationFault(int64 failing_call) {
    t_failing_call = failing_call;
    t_calls = 0;
}

AllocationFault::~AllocationFault() {
    t_failing_call = 0;
}

int64 AllocationFault::Calls() const {
    return t_calls;
}

}  // namespace kirto
