#include "base/allocation.h"

#include <atomic>
#include <limits>
#include <utility>

namespace kirto {

struct AllocationCounter {
    explicit AllocationCounter(int64 call) : failing_call(call) {}

    const int64 failing_call;
    std::atomic<int64> calls = 0;
};

namespace {

thread_local std::shared_ptr<AllocationCounter> t_fault;  // null: no fault installed

bool Overflows(size_t count, size_t size) {
    return size > 0 && count > std::numeric_limits<size_t>::max() / size;
}

}  // namespace

bool AllocationShouldFail() {
    return t_fault && ++t_fault->calls >= t_fault->failing_call;
}

std::shared_ptr<AllocationCounter> LentAllocationFault() {
    return t_fault;
}

void BorrowAllocationFault(std::shared_ptr<AllocationCounter> lent) {
    t_fault = std::move(lent);
}

void* AllocateZeroed(size_t count, size_t size) {
    if (AllocationShouldFail()) return nullptr;
    // calloc checks this too, but instrumented ones end the program over it.
    if (Overflows(count, size)) return nullptr;
    return std::calloc(count, size);
}

void* AllocateUnfilled(size_t count, size_t size) {
    if (AllocationShouldFail() || Overflows(count, size)) return nullptr;
    return std::malloc(count * size);
}

AllocationFault::AllocationFault(int64 failing_call) {
    t_fault = std::make_shared<AllocationCounter>(failing_call);
}

AllocationFault::~AllocationFault() {
    t_fault = nullptr;
}

int64 AllocationFault::Calls() const {
    return t_fault->calls;
}

}  // namespace kirto
