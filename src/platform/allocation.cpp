#include "platform/allocation.h"

#include <limits>
namespace kirto {

namespace {

thread_local int64 t_failing_call = 0;  // 0: no fault installed
thread_local int64 t_calls = 0;

}  // namespace

bool AllocationShouldFail() {
    if (t_failing_call == 0) return false;
    return ++t_calls >= t_failing_call;
}

void* AllocateZeroed(size_t count, size_t size) {
    if (AllocationShouldFail()) return nullptr;
    // calloc checks this too, but instrumented ones end the program over it.
    if (size > 0 && count > std::numeric_limits<size_t>::max() / size) return nullptr;
    return std::calloc(count, size);
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
