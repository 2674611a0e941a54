#include "bench/HeapCounter.h"

#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

// Replaced operators cannot carry state of their own: they count in the program's one heap.
quillgrid::bench::HeapUse heap; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

constexpr std::int64_t HeaderBytes = sizeof(std::size_t);

void* Take(std::size_t bytes) {
    void* const block = std::malloc(bytes == 0 ? 1 : bytes);
    if (!block) throw std::bad_alloc();
    ++heap.Allocations;
    heap.Bytes += static_cast<std::int64_t>(malloc_usable_size(block)) + HeaderBytes;
    return block;
}

void GiveBack(void* block) noexcept {
    if (!block) return;
    heap.Bytes -= static_cast<std::int64_t>(malloc_usable_size(block)) + HeaderBytes;
    std::free(block);
}

} // namespace

void* operator new(std::size_t bytes) {
    return Take(bytes);
}
void* operator new[](std::size_t bytes) {
    return Take(bytes);
}
void operator delete(void* block) noexcept {
    GiveBack(block);
}
void operator delete[](void* block) noexcept {
    GiveBack(block);
}
void operator delete(void* block, std::size_t) noexcept {
    GiveBack(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    GiveBack(block);
}

namespace quillgrid::bench {

HeapUse CurrentHeapUse() {
    return heap;
}

} // namespace quillgrid::bench
