// The one door through which large or countable blocks of memory are taken, so that size arithmetic
// is checked in one place and tests can make any allocation fail.
#pragma once

#include <cstdlib>
#include <memory>
#include <type_traits>

#include "base/types.h"

namespace kirto {

struct FreeDeleter {
    void operator()(void* block) const { std::free(block); }
};

template <typename T>
using AllocatedArray = std::unique_ptr<T[], FreeDeleter>;

// count * size zero-filled bytes, or null when the product overflows, memory is short or an
// installed fault says so. Thread-safe.
void* AllocateZeroed(size_t count, size_t size);

// The same but for the zeros, for what is written before it is read.
void* AllocateUnfilled(size_t count, size_t size);

// As AllocateZeroed, typed; all-zero bytes must be a valid T.
template <typename T>
AllocatedArray<T> AllocateArray(size_t count) {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
    return AllocatedArray<T>(static_cast<T*>(AllocateZeroed(count, sizeof(T))));
}

// As AllocateUnfilled, typed.
template <typename T>
AllocatedArray<T> AllocateUnfilledArray(size_t count) {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
    return AllocatedArray<T>(static_cast<T*>(AllocateUnfilled(count, sizeof(T))));
}

// True when an installed fault makes this allocation fail. Called by the functions above, and
// directly by code that allocates single objects and must report failure.
bool AllocationShouldFail();

struct AllocationCounter;

// A thread that works for another one shares the fault that is installed there, if any: the one
// lends it, the other borrows it for the rest of its life.
std::shared_ptr<AllocationCounter> LentAllocationFault();
void BorrowAllocationFault(std::shared_ptr<AllocationCounter> lent);

// While alive, makes the n-th allocation (1-based) of the calling thread, and of those that have
// borrowed it, and all later ones fail. One at a time; used by tests.
class AllocationFault {
  public:
    explicit AllocationFault(int64 failing_call);
    ~AllocationFault();
    AllocationFault(const AllocationFault&) = delete;
    AllocationFault& operator=(const AllocationFault&) = delete;

    // Allocations asked for since construction.
    int64 Calls() const;
};

}  // namespace kirto
