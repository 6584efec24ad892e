#include "app/refused_memory.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace kirto::test {

namespace {

RefusedMemory::Which g_which;  // constant while memory is refused
std::atomic<bool> g_refusing = false;
std::atomic<int64> g_count = 0;
std::atomic<int64> g_refused = 0;
thread_local bool t_spared = false;
thread_local bool t_marked = false;

bool IsRefused(size_t size) {
    if (!g_refusing || t_spared || size < g_which.least) return false;
    if (g_which.marked_only && !t_marked) return false;
    const int64 number = ++g_count;
    if (g_which.first == 0) return false;
    const bool refused = g_which.all_later ? number >= g_which.first : number == g_which.first;
    if (refused) ++g_refused;
    return refused;
}

}  // namespace

RefusedMemory::RefusedMemory(const Which& which) {
    t_spared = true;
    g_which = which;
    g_count = 0;
    g_refused = 0;
    g_refusing = true;
}

RefusedMemory::~RefusedMemory() {
    g_refusing = false;
    t_spared = false;
}

int64 RefusedMemory::Count() {
    return g_count;
}

int64 RefusedMemory::Refused() {
    return g_refused;
}

void RefusedMemory::MarkThread() {
    t_marked = true;
}

}  // namespace kirto::test

using kirto::test::IsRefused;

// What the linker puts in the place of the C library's functions where our own code calls them.
extern "C" {
void* __real_malloc(size_t size);
void* __real_calloc(size_t count, size_t size);

void* __wrap_malloc(size_t size) {
    return IsRefused(size) ? nullptr : __real_malloc(size);
}

void* __wrap_calloc(size_t count, size_t size) {
    return IsRefused(count * size) ? nullptr : __real_calloc(count, size);
}
}

void* operator new(size_t size) {
    void* const block = IsRefused(size) ? nullptr : __real_malloc(size > 0 ? size : 1);
    if (!block) throw std::bad_alloc();
    return block;
}

void* operator new(size_t size, const std::nothrow_t&) noexcept {
    return IsRefused(size) ? nullptr : __real_malloc(size > 0 ? size : 1);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, size_t) noexcept {
    std::free(block);
}
